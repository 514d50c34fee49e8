#pragma once
// Paints segment characters as a picture in SVG, in both forms.

#include <charconv>
#include <initializer_list>
#include <string>

#include "segments/DigiPaint.h"

namespace segments
{
/// Gathers one path element a segment: class "on" or "off" in the curve form, "led-on" or "led-off" in the polygon
/// form.
class SvgPainter : public DigiStatic::CDigiCurvePainter, public DigiStatic::CDigiPolygonPainter
{
public:
    std::string elements;

    void Select(bool lit) override { m_class = lit ? "on" : "off"; }
    void BeginOutline() override { m_path.clear(); }
    void MoveTo(DigiStatic::CDevicePoint point) override { Add('M', {point}); }
    void LineTo(DigiStatic::CDevicePoint point) override { Add('L', {point}); }
    void CurveTo(DigiStatic::CDevicePoint first, DigiStatic::CDevicePoint second, DigiStatic::CDevicePoint end) override
    {
        Add('C', {first, second, end});
    }
    void EndOutline() override {}
    void StrokeAndFill() override { AddElement(); }
    void MergeIntoRegion() override {}

    void PaintLit(std::span<DigiStatic::CPolygonPoint const> polygon) override { AddPolygon("led-on", polygon); }
    void PaintUnlit(std::span<DigiStatic::CPolygonPoint const> polygon) override { AddPolygon("led-off", polygon); }

private:
    void Add(char letter, std::initializer_list<DigiStatic::CDevicePoint> points)
    {
        for (DigiStatic::CDevicePoint const & point : points)
            AddPoint(&point == points.begin() ? letter : ' ', point.x, point.y);
    }
    void AddPolygon(char const * name, std::span<DigiStatic::CPolygonPoint const> polygon)
    {
        m_class = name;
        m_path.clear();
        for (DigiStatic::CPolygonPoint const & point : polygon)
            AddPoint(&point == polygon.data() ? 'M' : 'L', point.x, point.y);
        AddElement();
    }
    template <class Number> void AddPoint(char letter, Number x, Number y)
    {
        m_path += letter;
        m_path += Text(x);
        m_path += ' ';
        m_path += Text(y);
    }
    void AddElement() { elements += "<path class=\"" + m_class + "\" d=\"" + m_path + "\"/>\n"; }

    template <class Number> static std::string Text(Number number)
    {
        char text[32];
        return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
    }

    std::string m_class;
    std::string m_path;
};
} // namespace segments
