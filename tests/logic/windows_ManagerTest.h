#pragma once
// What the tests of the window manager share.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "substitutes/FakeWindowPlatform.h"
#include "substitutes/RecordingStore.h"
#include "windows/FensterManager.h"

namespace manager_tests
{
using Calls = std::vector<std::string>;

inline std::vector<int> Sides(RECT const & rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

inline std::vector<int> Numbers(int left, int top, int right, int bottom)
{
    return {left, top, right, bottom};
}

class ManagerTest : public testing::Test
{
protected:
    void SetUp() override { m_platform.Reset(); }
    void TearDown() override
    {
        CFensterManager main(CFensterManager::window_main);
        main.SetNowExit(false);
        CFensterManager::SetNurEinMonitor(true);
        CFensterManager::KeepWithinReach(false);
        CFensterManager::SetTabbedViews(false);
        m_platform.Reset();
    }

    FakeWindow & AddPlaced(char const * name)
    {
        FakeWindow & window = m_platform.Add(name);
        window.placement.showCmd = 1;
        window.placement.flags = 0;
        window.placement.ptMinPosition = {-32000, -31000};
        window.placement.ptMaxPosition = {-8, -9};
        window.placement.rcNormalPosition = {101, 102, 603, 404};
        return window;
    }

    FakeWindowPlatform & m_platform = FakeWindowPlatform::Current();
};

inline constexpr CFensterManager::window_t all_types[] = {
    CFensterManager::window_main, CFensterManager::window_view, CFensterManager::window_dialog,
    CFensterManager::window_mdi_child, CFensterManager::window_sizable_dialog};
} // namespace manager_tests
