#pragma once
// Visual styles that a test switches on and off. While on, the system's own theme is painted.

#include <afxwin.h>

#include <utility>
#include <vector>

namespace combo_test
{
/// What a theme was asked to do.
struct ThemeUse
{
    int opened = 0;
    int closed = 0;
    /// Part and state of each background drawn.
    std::vector<std::pair<int, int>> drawn;
};

extern bool g_styled;
/// Colours can't be read.
extern bool g_colorsFail;
extern ThemeUse g_use;

/// Visual styles for a scope.
class Styled
{
public:
    explicit Styled(bool styled = true)
    {
        g_styled = styled;
        g_use = {};
    }
    ~Styled()
    {
        g_styled = false;
        g_colorsFail = false;
    }
    Styled(Styled const &) = delete;
    Styled & operator=(Styled const &) = delete;
};
} // namespace combo_test
