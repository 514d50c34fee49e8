// How the recordings of folders were shown last.

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "logic/FolderViews.h"

using namespace workbench;

namespace
{
FolderView Full()
{
    FolderView view;
    view.column = 5;
    view.ascending = false;
    view.order = {L"b.wav", L"sub/a.wav"};
    view.selected = {L"b.wav", L"part 1.wav"};
    view.chosen = L"sort 3 1";
    view.stretch = {1000, 10, 20, 15};
    return view;
}
} // namespace

TEST(FolderViewTexts, ComeBackAsTheyWere)
{
    EXPECT_EQ(FolderViewText({}), L"");
    EXPECT_EQ(ReadFolderView(L""), FolderView());
    EXPECT_EQ(ReadFolderView(FolderViewText(Full())), Full());
}

TEST(FolderViewTexts, WhatIsNoneIsPassedOver)
{
    FolderView view;
    view.chosen = L"a.wav";
    EXPECT_EQ(ReadFolderView(L"sort 1\nsort 2000 1\nsort 1 2\nsort x 1\npart 1 2 3\npart 1 2 3 99999999999999999999\n"
                             L"other 1\n\nchosen a.wav"),
              view);
}

TEST(FolderViewTexts, AnyTextIsRead)
{
    std::mt19937 random(1); // NOLINT: the same texts each time
    std::wstring const text = FolderViewText(Full());
    for (int i = 0; i < 2000; ++i)
    {
        std::wstring damaged = text.substr(0, random() % (text.size() + 1));
        for (unsigned int changes = random() % 4; changes > 0 && !damaged.empty(); --changes)
        {
            damaged[random() % damaged.size()] = static_cast<wchar_t>(random() % 128);
        }
        FolderView const view = ReadFolderView(damaged);
        EXPECT_EQ(ReadFolderView(FolderViewText(view)), view);
    }
}

TEST(FolderViewNames, AreThoseBelowTheFolder)
{
    std::filesystem::path const folder(L"/data/engines");
    std::filesystem::path const inner = folder / L"sub" / L"a.wav";
    EXPECT_EQ(FileInFolder(folder, NameInFolder(folder, inner)), inner);
    EXPECT_LT(NameInFolder(folder, inner).size(), inner.wstring().size());
    std::filesystem::path const other(L"/data/engines 2/a.wav");
    EXPECT_EQ(NameInFolder(folder, other), other.wstring());
    EXPECT_EQ(NameInFolder({}, other), other.wstring());
}

TEST(FolderViewStore, KeepsOneForEachFolder)
{
    std::filesystem::path const folder = std::filesystem::temp_directory_path() / "workbench_folder_views";
    std::filesystem::remove_all(folder);
    {
        FolderViews views(folder / "Views.txt");
        views.Set(L"/data/one", Full());
        views.Set(L"/data/two", {});
    }
    {
        FolderViews views(folder / "Views.txt");
        EXPECT_EQ(views.Of(L"/data/one"), Full());
        EXPECT_EQ(views.Of(L"/data/two"), FolderView());
        views.Set(L"/data/one", {});
        EXPECT_TRUE(views.Flush());
    }
    EXPECT_EQ(FolderViews(folder / "Views.txt").Of(L"/data/one"), FolderView());
    std::filesystem::remove_all(folder);
}
