#include "layout/Edges.h"

CEdges::CEdges(DWORD bits) : m_bits(bits) {}

bool CEdges::operator&(CEdges const & other) const
{
    return (m_bits & other.m_bits) != 0;
}

CEdges CEdges::operator|(CEdges const & other) const
{
    return CEdges(m_bits | other.m_bits);
}

CEdges CEdges::LEFT()
{
    return CEdges(0x0001);
}

CEdges CEdges::RIGHT()
{
    return CEdges(0x0002);
}

CEdges CEdges::TOP()
{
    return CEdges(0x0004);
}

CEdges CEdges::BOTTOM()
{
    return CEdges(0x0008);
}

CEdges CEdges::LEFT_HALF()
{
    return CEdges(0x0010);
}

CEdges CEdges::RIGHT_HALF()
{
    return CEdges(0x0020);
}

CEdges CEdges::TOP_HALF()
{
    return CEdges(0x0040);
}

CEdges CEdges::BOTTOM_HALF()
{
    return CEdges(0x0080);
}

CEdges CEdges::HORI_CENTER()
{
    return CEdges(0x0100);
}

CEdges CEdges::VERT_CENTER()
{
    return CEdges(0x0200);
}

CEdges CEdges::TOP_THIRD()
{
    return CEdges(0x0400);
}

CEdges CEdges::TOP_TWOTHIRD()
{
    return CEdges(0x0800);
}

CEdges CEdges::BOTTOM_THIRD()
{
    return CEdges(0x1000);
}

CEdges CEdges::BOTTOM_TWOTHIRD()
{
    return CEdges(0x2000);
}

CEdges CEdges::LEFT_RIGHT()
{
    return LEFT() | RIGHT();
}

CEdges CEdges::TOP_BOTTOM()
{
    return TOP() | BOTTOM();
}

CEdges CEdges::TOP_LEFT()
{
    return TOP() | LEFT();
}

CEdges CEdges::TOP_RIGHT()
{
    return TOP() | RIGHT();
}

CEdges CEdges::BOTTOM_LEFT()
{
    return BOTTOM() | LEFT();
}

CEdges CEdges::BOTTOM_RIGHT()
{
    return BOTTOM() | RIGHT();
}

CEdges CEdges::TOP_LEFT_RIGHT()
{
    return TOP_LEFT() | RIGHT();
}

CEdges CEdges::BOTTOM_LEFT_RIGHT()
{
    return BOTTOM_LEFT() | RIGHT();
}

CEdges CEdges::TOP_LEFT_BOTTOM()
{
    return TOP_LEFT() | BOTTOM();
}

CEdges CEdges::TOP_RIGHT_BOTTOM()
{
    return TOP_RIGHT() | BOTTOM();
}

CEdges CEdges::TOP_LEFT_BOTTOM_RIGHT()
{
    return TOP_LEFT() | BOTTOM_RIGHT();
}

CEdges CEdges::TOP_CENTER()
{
    return TOP() | HORI_CENTER();
}

CEdges CEdges::BOTTOM_CENTER()
{
    return BOTTOM() | HORI_CENTER();
}
