#include "controls/XTreeItems.h"

#include <algorithm>
#include <memory>

namespace xtree
{
namespace
{
enum KeyClass : unsigned int
{
    function_keys = 1,
    digits = 2,
    letters = 4,
    control_keys = 8,
    navigation_keys = 16,
    space = 32,
    every_key = 255
};

bool IsWithin(unsigned int key, unsigned int first, unsigned int last)
{
    return key >= first && key <= last;
}

unsigned int ClassesOf(unsigned int key)
{
    if (IsWithin(key, VK_F2, VK_F12))
        return function_keys;
    if (IsWithin(key, '0', '9') || IsWithin(key, VK_NUMPAD0, VK_NUMPAD9))
        return digits;
    if (IsWithin(key, 'A', 'Z'))
        return letters;
    if (IsWithin(key, VK_PRIOR, VK_DOWN) || key == VK_CLEAR)
        return navigation_keys;
    switch (key)
    {
    case VK_SPACE:
        return control_keys | space;
    case VK_DELETE:
    case VK_BACK:
    case VK_TAB:
    case VK_RETURN:
    case VK_SHIFT:
    case VK_CONTROL:
    case VK_CAPITAL:
        return control_keys;
    default:
        return 0;
    }
}
} // namespace

XTreeItemData * TakeRecord(Records & inUse, Records & stock)
{
    if (stock.empty())
    {
        auto fresh = std::make_unique<XTreeItemData>();
        inUse.push_back(fresh.get());
        return fresh.release();
    }
    inUse.splice(inUse.end(), stock, stock.begin());
    XTreeItemData * const record = inUse.back();
    int const sortKey = record->sortKey;
    *record = XTreeItemData();
    record->sortKey = sortKey;
    return record;
}

void ReturnRecord(Records & inUse, Records & stock, XTreeItemData const * record)
{
    auto const found = std::find(inUse.begin(), inUse.end(), record);
    if (found != inUse.end())
        stock.splice(stock.end(), inUse, found);
}

void ReturnAllRecords(Records & inUse, Records & stock)
{
    stock.splice(stock.end(), inUse);
}

void FreeRecords(Records & stock)
{
    for (XTreeItemData const * const record : stock)
        delete record;
    stock.clear();
}

bool MatchesBest(XTreeItemData const * record, int type, int id, int const * clavis)
{
    if (record == nullptr || (type != -1 && type != record->type) || (id != -1 && id != record->id))
        return false;
    return clavis == nullptr || std::equal(clavis, clavis + XTreeItemData::clavis_length, record->clavis,
                                           [](int wanted, int own) { return wanted == -1 || wanted == own; });
}

bool MatchesExactly(XTreeItemData const * record, int type, int id, int const * clavis)
{
    if (record == nullptr || type != record->type || id != record->id)
        return false;
    return clavis == nullptr || std::equal(clavis, clavis + XTreeItemData::clavis_length, record->clavis);
}

bool PassesKey(unsigned int keyFlags, unsigned int key)
{
    return keyFlags == every_key || (ClassesOf(key) & keyFlags) != 0;
}
} // namespace xtree
