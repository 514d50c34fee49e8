#include "colours/ControlColors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <initializer_list>

namespace
{
/// Numbers of the system's colours.
namespace number
{
constexpr int active_caption = 2;
constexpr int inactive_caption = 3;
constexpr int window = 5;
constexpr int window_text = 8;
constexpr int highlight = 13;
constexpr int highlight_text = 14;
constexpr int face = 15;
constexpr int shadow = 16;
constexpr int gray_text = 17;
constexpr int button_text = 18;
constexpr int inactive_caption_text = 19;
constexpr int button_highlight = 20;
constexpr int dark_shadow = 21;
constexpr int light = 22;
constexpr int hot_light = 26;
} // namespace number

constexpr COLORREF black = 0x000000;
constexpr COLORREF white = 0xFFFFFF;
constexpr int most = 255;

/// Of a component as it is seen.
double Linear(int component)
{
    constexpr double straight_up_to = 0.03928;
    double const part = component / static_cast<double>(most);
    return part <= straight_up_to ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(COLORREF color)
{
    static std::array<double, most + 1> const linear = [] {
        std::array<double, most + 1> values{};
        for (int component = 0; component <= most; ++component)
            values[static_cast<std::size_t>(component)] = Linear(component);
        return values;
    }();
    return 0.2126 * linear[GetRValue(color)] + 0.7152 * linear[GetGValue(color)] + 0.0722 * linear[GetBValue(color)];
}

/// So many parts of 16 of the second colour.
COLORREF Mixed(COLORREF one, COLORREF other, int parts)
{
    constexpr int whole = 16;
    auto const mix = [parts](int from, int to) { return from + (to - from) * parts / whole; };
    return RGB(mix(GetRValue(one), GetRValue(other)), mix(GetGValue(one), GetGValue(other)),
               mix(GetBValue(one), GetBValue(other)));
}

double LeastContrast(COLORREF text, std::initializer_list<COLORREF> grounds)
{
    double least = most;
    for (COLORREF const ground : grounds)
        least = std::min(least, control_colors::ContrastOf(text, ground));
    return least;
}

/// The colour, moved towards black or white as far as it takes to be read on all of the grounds.
COLORREF Readable(COLORREF text, std::initializer_list<COLORREF> grounds)
{
    constexpr int steps = 16;
    COLORREF const end = LeastContrast(black, grounds) > LeastContrast(white, grounds) ? black : white;
    for (int step = 0; step < steps; ++step)
    {
        COLORREF const color = Mixed(text, end, step);
        if (LeastContrast(color, grounds) >= control_colors::least_contrast)
            return color;
    }
    return end;
}

/// Whether two grounds are told apart.
bool AreApart(COLORREF one, COLORREF other)
{
    constexpr int least_seen = 24;
    return std::abs(GetRValue(one) - GetRValue(other)) >= least_seen ||
           std::abs(GetGValue(one) - GetGValue(other)) >= least_seen ||
           std::abs(GetBValue(one) - GetBValue(other)) >= least_seen;
}

/// A ground beside the window's on which its text is read as well.
COLORREF SecondGround(COLORREF wished, COLORREF window, COLORREF text, COLORREF selection)
{
    constexpr int quarter = 4;
    auto const serves = [=](COLORREF ground) {
        return AreApart(ground, window) &&
               control_colors::ContrastOf(text, ground) >= 2 * control_colors::least_contrast;
    };
    if (serves(wished))
        return wished;
    for (COLORREF const color : {selection, text})
    {
        for (int parts = quarter; parts > 1; --parts)
        {
            if (serves(Mixed(window, color, parts)))
                return Mixed(window, color, parts);
        }
    }
    return window;
}
} // namespace

namespace control_colors
{
double ContrastOf(COLORREF one, COLORREF other)
{
    constexpr double flare = 0.05;
    double const first = Luminance(one) + flare;
    double const second = Luminance(other) + flare;
    return std::max(first, second) / std::min(first, second);
}

COLORREF MarkOn(COLORREF ground, COLORREF mark, COLORREF text)
{
    double const contrast = ContrastOf(mark, ground);
    return contrast >= least_contrast || contrast >= ContrastOf(text, ground) ? mark : text;
}

COLORREF TextOn(COLORREF ground, COLORREF text, COLORREF other)
{
    for (COLORREF const color : {text, other})
    {
        if (ContrastOf(color, ground) >= least_contrast)
            return color;
    }
    return MarkOn(ground, black, white);
}

ControlColors Standard(SystemColorLookup system)
{
    ControlColors colors{};
    colors.window = system(number::window);
    colors.windowText = system(number::window_text);
    colors.link = RGB(0, 0, 255);
    colors.selection = system(number::highlight);
    colors.selectionText = system(number::highlight_text);
    colors.inactiveSelection = system(number::face);
    colors.disabled = system(number::gray_text);
    colors.face = system(number::face);
    colors.buttonText = system(number::button_text);
    colors.edgeHighlight = system(number::button_highlight);
    colors.edgeShadow = system(number::shadow);
    colors.edgeDark = system(number::dark_shadow);
    colors.edgeLight = system(number::light);
    colors.activeCaption = system(number::active_caption);
    colors.inactiveCaption = system(number::inactive_caption);
    colors.inactiveCaptionText = system(number::inactive_caption_text);

    colors.checkFrame = RGB(51, 102, 153);
    colors.checkMark = RGB(51, 153, 51);
    colors.crossMark = RGB(153, 51, 51);
    colors.radioGround = white;
    colors.radioLight = RGB(150, 255, 150);
    colors.comboArrow = RGB(51, 153, 51);

    colors.trough = RGB(224, 224, 224);
    colors.troughFrame = black;
    colors.bar = colors.selection;
    colors.barText = colors.trough;
    colors.tableBar = colors.activeCaption;
    colors.headerBar = colors.selection;

    colors.headerFace = colors.face;
    colors.headerText = colors.buttonText;
    colors.headerHighlight = colors.edgeHighlight;
    colors.headerShadow = colors.edgeShadow;
    colors.headerBox = colors.window;
    colors.headerMixed = RGB(90, 192, 90);
    colors.headerArrow = colors.checkFrame;

    colors.comboFrame = black;
    colors.comboOutline = white;
    colors.dropFrame = colors.edgeDark;
    colors.editFrame = colors.checkFrame;

    colors.sliderMain = RGB(180, 180, 200);
    colors.sliderSecond = colors.face;

    colors.buttonDisabled = RGB(128, 128, 128);
    colors.buttonHotFrame = RGB(0, 255, 0);
    return colors;
}

ControlColors Dark()
{
    ControlColors colors{};
    colors.adapts = true;
    colors.window = RGB(30, 30, 30);
    colors.windowText = RGB(230, 230, 230);
    colors.link = RGB(138, 184, 255);
    colors.selection = RGB(11, 79, 138);
    colors.selectionText = white;
    colors.inactiveSelection = RGB(63, 63, 70);
    colors.disabled = RGB(176, 176, 176);
    colors.face = RGB(45, 45, 48);
    colors.buttonText = RGB(230, 230, 230);
    colors.edgeHighlight = RGB(85, 85, 92);
    colors.edgeShadow = RGB(20, 20, 20);
    colors.edgeDark = RGB(110, 110, 118);
    colors.edgeLight = RGB(70, 70, 76);
    colors.activeCaption = RGB(11, 90, 158);
    colors.inactiveCaption = RGB(63, 63, 70);
    colors.inactiveCaptionText = RGB(230, 230, 230);

    colors.checkFrame = RGB(140, 186, 232);
    colors.checkMark = RGB(127, 217, 127);
    colors.crossMark = RGB(255, 154, 154);
    colors.radioGround = colors.window;
    colors.radioLight = RGB(200, 255, 200);
    colors.comboArrow = colors.checkMark;

    colors.trough = RGB(48, 48, 52);
    colors.troughFrame = RGB(110, 110, 118);
    colors.bar = colors.activeCaption;
    colors.barText = white;
    colors.tableBar = colors.bar;
    colors.headerBar = RGB(90, 170, 240);

    colors.headerFace = colors.face;
    colors.headerText = colors.buttonText;
    colors.headerHighlight = colors.edgeHighlight;
    colors.headerShadow = colors.edgeShadow;
    colors.headerBox = colors.window;
    colors.headerMixed = colors.checkMark;
    colors.headerArrow = colors.checkFrame;

    colors.comboFrame = colors.edgeDark;
    colors.comboOutline = colors.inactiveSelection;
    colors.dropFrame = colors.edgeDark;
    colors.editFrame = colors.checkFrame;

    colors.sliderMain = RGB(90, 110, 150);
    colors.sliderSecond = RGB(70, 70, 76);

    colors.buttonDisabled = colors.disabled;
    colors.buttonHotFrame = colors.checkMark;
    return colors;
}

ControlColors HighContrast(SystemColorLookup system)
{
    ControlColors colors = Standard(system);
    colors.adapts = true;
    colors.windowText = Readable(colors.windowText, {colors.window});
    colors.selectionText = Readable(colors.selectionText, {colors.selection});
    colors.inactiveSelection = SecondGround(colors.face, colors.window, colors.windowText, colors.selection);
    colors.windowText = Readable(colors.windowText, {colors.window, colors.inactiveSelection});
    // As the ground of what is disabled as well, so that one grey is read on all of them.
    colors.face = colors.inactiveSelection;
    colors.trough = colors.window;
    colors.link = Readable(system(number::hot_light), {colors.window, colors.inactiveSelection});
    colors.disabled = Readable(colors.disabled, {colors.window, colors.inactiveSelection});
    colors.buttonText = Readable(colors.buttonText, {colors.window, colors.face});
    colors.inactiveCaptionText = Readable(colors.inactiveCaptionText, {colors.inactiveCaption});
    for (COLORREF * const edge : {&colors.edgeHighlight, &colors.edgeShadow, &colors.edgeDark, &colors.edgeLight})
        *edge = colors.windowText;

    for (COLORREF * const mark :
         {&colors.checkFrame, &colors.checkMark, &colors.crossMark, &colors.radioLight, &colors.comboArrow,
          &colors.headerMixed, &colors.troughFrame, &colors.comboFrame, &colors.dropFrame, &colors.editFrame})
        *mark = colors.windowText;
    colors.radioGround = colors.window;
    colors.barText = colors.selectionText;
    colors.tableBar = colors.bar;
    colors.headerFace = system(number::face);
    colors.headerText = Readable(system(number::button_text), {colors.headerFace});
    colors.headerHighlight = colors.headerText;
    colors.headerShadow = colors.headerText;
    colors.headerArrow = colors.headerText;
    colors.headerBar = Readable(colors.selection, {colors.headerFace});
    colors.comboOutline = colors.window;
    colors.sliderMain = colors.selection;
    colors.sliderSecond = colors.face;
    colors.buttonDisabled = colors.disabled;
    colors.buttonHotFrame = colors.windowText;
    return colors;
}
} // namespace control_colors
