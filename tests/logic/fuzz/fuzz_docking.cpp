// Feeds arbitrary bytes to the reader of stored arrangements of panes: it gives none, or one that is sound.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "DockLayout.h"

namespace
{
void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// What the bytes would be with the right check sum, which no search finds.
std::vector<std::uint8_t> WithCheckSum(std::uint8_t const * data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    std::uint32_t sum = 2166136261u;
    for (std::uint8_t const byte : bytes)
        sum = (sum ^ byte) * 16777619u;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(sum >> shift));
    return bytes;
}

void Use(framework::DockLayout & layout)
{
    using namespace framework;

    Require(DockLayout::Load(layout.Save()).value().SameAs(layout));
    std::vector<UINT> panes;
    for (auto const & [id, pane] : layout.Panes())
        panes.push_back(id);
    for (UINT const pane : panes)
    {
        layout.AddPane(pane, CSize(30, 20), CSize(100, 100));
        layout.Show(pane, true);
    }
    CRect const rect(0, 0, 640, 480);
    for (framework::DockPlan::Group const & group : layout.Arrange(0, rect).groups)
        Require(group.rect.left >= 0 && group.rect.top >= 0 && group.rect.right <= 640 && group.rect.bottom <= 480);
    for (framework::DockLayout::Frame const & frame : layout.Frames())
        layout.Arrange(frame.id, rect);
    for (UINT const pane : panes)
    {
        layout.DockBack(pane);
        layout.Fold(pane, true);
        layout.DockAtSide(pane, DockSide::bottom, true);
    }
    Require(panes.empty() || DockLayout::Load(layout.Save()).has_value());
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    if (auto layout = framework::DockLayout::Load({data, size}))
        Use(*layout);
    if (auto layout = framework::DockLayout::Load(WithCheckSum(data, size)))
        Use(*layout);
    return 0;
}
