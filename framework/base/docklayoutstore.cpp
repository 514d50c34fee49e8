// The arrangement of panes as bytes.

#include "DockLayout.h"

#include <algorithm>
#include <set>

namespace framework
{
namespace
{
constexpr std::uint32_t mark = 0x4B434F44; // "DOCK"
constexpr std::uint32_t version = 1;       // stored layouts of another version are passed over
constexpr std::uint32_t most_panes = 2000;
constexpr int deepest = 1000;
constexpr std::int32_t largest = 1000000; // of coordinates and extents

std::uint32_t CheckSum(std::span<std::uint8_t const> bytes)
{
    std::uint32_t sum = 2166136261u;
    for (std::uint8_t const byte : bytes)
        sum = (sum ^ byte) * 16777619u;
    return sum;
}

class Writer
{
public:
    void Number(std::uint32_t value)
    {
        for (int shift = 0; shift < 32; shift += 8)
            m_bytes.push_back(static_cast<std::uint8_t>(value >> shift));
    }
    void Signed(int value) { Number(static_cast<std::uint32_t>(std::clamp(value, -largest, largest))); }
    void Byte(int value) { m_bytes.push_back(static_cast<std::uint8_t>(value)); }
    void Rect(CRect const & rect)
    {
        Signed(rect.left);
        Signed(rect.top);
        Signed(rect.right);
        Signed(rect.bottom);
    }
    std::vector<std::uint8_t> Finish()
    {
        Number(CheckSum(m_bytes));
        return std::move(m_bytes);
    }

private:
    std::vector<std::uint8_t> m_bytes;
};

/// Gives zeros once something was wrong.
class Reader
{
public:
    explicit Reader(std::span<std::uint8_t const> bytes) : m_bytes(bytes) {}

    bool Sound() const { return m_sound; }
    bool AtEnd() const { return m_bytes.empty(); }
    void Fail() { m_sound = false; }
    std::uint32_t Number()
    {
        std::uint32_t value = 0;
        for (int shift = 0; shift < 32; shift += 8)
            value |= std::uint32_t{Byte()} << shift;
        return value;
    }
    int Signed()
    {
        auto const value = static_cast<std::int32_t>(Number());
        if (value < -largest || value > largest)
            Fail();
        return m_sound ? value : 0;
    }
    int Extent()
    {
        int const value = Signed();
        if (value < 0)
            Fail();
        return m_sound ? value : 0;
    }
    std::uint8_t Byte()
    {
        if (m_bytes.empty())
            Fail();
        if (!m_sound)
            return 0;
        std::uint8_t const value = m_bytes.front();
        m_bytes = m_bytes.subspan(1);
        return value;
    }
    std::uint8_t Choice(std::uint8_t most)
    {
        std::uint8_t const value = Byte();
        if (value > most)
            Fail();
        return m_sound ? value : 0;
    }
    std::uint32_t Count(std::uint32_t most)
    {
        std::uint32_t const value = Number();
        if (value > most || value > m_bytes.size())
            Fail();
        return m_sound ? value : 0;
    }
    CRect Rect()
    {
        int const left = Signed();
        int const top = Signed();
        int const right = Signed();
        int const bottom = Signed();
        return CRect(left, top, right, bottom);
    }

private:
    std::span<std::uint8_t const> m_bytes;
    bool m_sound = true;
};

void WriteNode(Writer & writer, DockNode const & node)
{
    writer.Byte(static_cast<int>(node.kind));
    writer.Byte(node.across ? 1 : 0);
    writer.Signed(node.extent);
    writer.Number(node.active);
    writer.Number(static_cast<std::uint32_t>(node.panes.size()));
    for (UINT const pane : node.panes)
        writer.Number(pane);
    writer.Number(static_cast<std::uint32_t>(node.children.size()));
    for (DockNode const & child : node.children)
        WriteNode(writer, child);
}
} // namespace

struct DockLayoutStore
{
    Reader & reader;
    DockLayout & layout;
    std::set<UINT> seen; // the panes in the tree that is read
    int centres = 0;

    DockNode ReadNode(int depth)
    {
        DockNode node;
        if (depth > deepest)
            reader.Fail();
        node.kind = static_cast<DockNode::Kind>(reader.Choice(2));
        node.across = reader.Choice(1) != 0;
        node.extent = reader.Extent();
        node.active = reader.Number();
        node.id = layout.NewId();
        std::uint32_t const panes = reader.Count(most_panes);
        for (std::uint32_t at = 0; at < panes && reader.Sound(); ++at)
        {
            UINT const pane = reader.Number();
            if (layout.Find(pane) == nullptr || !seen.insert(pane).second)
                reader.Fail();
            node.panes.push_back(pane);
        }
        std::uint32_t const children = reader.Count(most_panes);
        for (std::uint32_t at = 0; at < children && reader.Sound(); ++at)
        {
            node.children.push_back(ReadNode(depth + 1));
            DockNode const & child = node.children.back();
            if (child.kind == DockNode::Kind::split && child.across == node.across)
                reader.Fail();
        }
        switch (node.kind)
        {
        case DockNode::Kind::tabs:
            if (panes == 0 || children != 0 || node.across ||
                std::find(node.panes.begin(), node.panes.end(), node.active) == node.panes.end())
                reader.Fail();
            break;
        case DockNode::Kind::split:
            if (panes != 0 || children < 2 || node.active != 0)
                reader.Fail();
            break;
        case DockNode::Kind::centre:
            ++centres;
            if (panes != 0 || children != 0 || node.across || node.active != 0)
                reader.Fail();
            break;
        }
        return node;
    }

    /// The tree of a frame, which has a centre or hasn't.
    DockNode ReadTree(int centresWanted)
    {
        centres = 0;
        DockNode node = ReadNode(0);
        if (centres != centresWanted)
            reader.Fail();
        return node;
    }
};

std::vector<std::uint8_t> DockLayout::Save() const
{
    Writer writer;
    writer.Number(mark);
    writer.Number(version);
    writer.Number(static_cast<std::uint32_t>(m_panes.size()));
    for (auto const & [id, pane] : m_panes)
    {
        writer.Number(id);
        writer.Byte(static_cast<int>(pane.place));
        writer.Byte(pane.visible ? 1 : 0);
        writer.Signed(pane.size.cx);
        writer.Signed(pane.size.cy);
        writer.Rect(pane.floatRect);
        writer.Byte(static_cast<int>(pane.foldSide));
    }
    WriteNode(writer, m_root);
    writer.Number(static_cast<std::uint32_t>(m_frames.size()));
    for (Frame const & frame : m_frames)
    {
        writer.Rect(frame.rect);
        WriteNode(writer, *frame.tree);
    }
    writer.Number(static_cast<std::uint32_t>(m_folded.size()));
    for (UINT const pane : m_folded)
        writer.Number(pane);
    return writer.Finish();
}

std::optional<DockLayout> DockLayout::Load(std::span<std::uint8_t const> bytes)
{
    constexpr size_t sum_size = 4;
    if (bytes.size() < sum_size)
        return std::nullopt;
    Reader sum(bytes.last(sum_size));
    bytes = bytes.first(bytes.size() - sum_size);
    if (sum.Number() != CheckSum(bytes))
        return std::nullopt;
    Reader reader(bytes);
    if (reader.Number() != mark || reader.Number() != version)
        return std::nullopt;
    DockLayout layout;
    std::uint32_t const panes = reader.Count(most_panes);
    for (std::uint32_t at = 0; at < panes && reader.Sound(); ++at)
    {
        UINT const id = reader.Number();
        DockPane pane;
        pane.present = false;
        pane.place = static_cast<DockPlace>(reader.Choice(3));
        pane.visible = reader.Choice(1) != 0;
        pane.size.cx = reader.Extent();
        pane.size.cy = reader.Extent();
        pane.floatRect = reader.Rect();
        pane.foldSide = static_cast<DockSide>(reader.Choice(3));
        if (!layout.m_panes.emplace(id, pane).second)
            reader.Fail();
    }
    DockLayoutStore store{reader, layout, {}, 0};
    layout.m_root = store.ReadTree(1);
    store.seen.clear();
    std::uint32_t const frames = reader.Count(most_panes);
    for (std::uint32_t at = 0; at < frames && reader.Sound(); ++at)
    {
        CRect const rect = reader.Rect();
        UINT const id = layout.NewId();
        layout.m_frames.push_back(Frame{id, rect, store.ReadTree(0)});
    }
    std::uint32_t const folded = reader.Count(most_panes);
    std::set<UINT> inStrip;
    for (std::uint32_t at = 0; at < folded && reader.Sound(); ++at)
    {
        UINT const pane = reader.Number();
        if (layout.Find(pane) == nullptr || !inStrip.insert(pane).second)
            reader.Fail();
        layout.m_folded.push_back(pane);
    }
    // What a pane says of its place must be so.
    for (auto const & [id, pane] : layout.m_panes)
    {
        bool const folds = pane.place == DockPlace::folded;
        if (folds != inStrip.contains(id) ||
            ((folds || pane.place == DockPlace::docked) && !layout.HasDockedPlace(id)) ||
            (pane.place == DockPlace::floating && !layout.HasFloatingPlace(id)))
            return std::nullopt;
    }
    if (!reader.Sound() || !reader.AtEnd())
        return std::nullopt;
    return layout;
}
} // namespace framework
