// The picture of all characters in docs/images is what the engine paints. With the environment variable UPDATE_GOLDEN
// set to 1 it is written anew; the test fails all the same, so that an update can't pass for a check.

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>

#include "segments_Support.h"
#include "segments_SvgPainter.h"

namespace
{
using namespace segments;

constexpr char const * kept_path = TEST_DATA_DIR "/../../../docs/images/segment-characters.svg";

constexpr int columns = 18;
constexpr int margin = 12;
constexpr int cell_height = 83;
constexpr int cell_width = 49;
constexpr int row_height = cell_height + 6;
constexpr int caption_height = 22;

constexpr std::wstring_view seven_text = L" 0123456789-_\u00B0.:";
constexpr std::wstring_view fourteen_text =
    L" 0123456789-ABCDEFGHIJKLMNOPQRSTUVWXYZ*+()\\/_'\u00B0\u00B2%\u00B5\u00C4.:";

class Sheet
{
public:
    void AddGroup(char const * caption, std::wstring_view text, unsigned long style, bool asPolygons)
    {
        m_y += caption_height;
        m_body +=
            "<text x=\"" + std::to_string(margin) + "\" y=\"" + std::to_string(m_y - 6) + "\">" + caption + "</text>\n";
        while (!text.empty())
        {
            AddLine(text.substr(0, columns), style, asPolygons);
            text.remove_prefix(std::min<std::size_t>(columns, text.size()));
        }
    }

    std::string Text() const
    {
        std::string const width = std::to_string(columns * cell_width + 2 * margin);
        std::string const height = std::to_string(m_y + margin);
        return "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "\" height=\"" + height + "\">\n" +
               "<style>text{font:13px sans-serif;fill:#cccccc}.on{fill:#00ff00;stroke:#07c700}" +
               ".off{fill:#005000;stroke:#074300}.led-on{fill:#ffb400;stroke:#ffb400}.led-off{fill:#5a4014}" +
               "path{fill-rule:evenodd}</style>\n<rect width=\"100%\" height=\"100%\" fill=\"#001e50\"/>\n" + m_body +
               "</svg>\n";
    }

private:
    void AddLine(std::wstring_view text, unsigned long style, bool asPolygons)
    {
        int x = margin;
        for (wchar_t const code : text)
        {
            CDigiCharOwner const character = Make(code, style);
            double const rect[] = {1.0 * x, 1.0 * m_y, 1.0 * x + character->GetWidth(), 1.0 * m_y + cell_height};
            SvgPainter painter;
            if (asPolygons)
                DigiStatic::PaintPolygons(*character, rect, painter);
            else
                DigiStatic::PaintCurves(*character, rect, painter, m_cache);
            m_body += painter.elements;
            x += character->GetWidth();
        }
        m_y += row_height;
    }

    std::string m_body;
    int m_y = 0;
    CBezierFitCache m_cache;
};

std::string PaintSheet()
{
    Sheet sheet;
    for (bool const asPolygons : {false, true})
    {
        std::string const form = asPolygons ? "polygons, " : "curves, ";
        for (bool const rounded : {false, true})
        {
            std::string const caption = form + (rounded ? "rounded, " : "plain, ");
            unsigned long const style = rounded ? DigiStyleRounded : 0;
            sheet.AddGroup((caption + "7 segments").c_str(), seven_text, style, asPolygons);
            sheet.AddGroup((caption + "14 segments").c_str(), fourteen_text, style | DigiStyleAlways14, asPolygons);
        }
    }
    return sheet.Text();
}

TEST(SegmentSheet, KeptPictureIsWhatIsPainted)
{
    std::string const painted = PaintSheet();
    std::ifstream file(kept_path, std::ios::binary);
    std::string const kept(std::istreambuf_iterator<char>(file), {});
    if (char const * const update = std::getenv("UPDATE_GOLDEN"); update != nullptr && std::strcmp(update, "1") == 0)
    {
        std::ofstream(kept_path, std::ios::binary) << painted;
        FAIL() << kept_path << " is written anew";
    }
    auto const differing = std::mismatch(kept.begin(), kept.end(), painted.begin(), painted.end()).second;
    auto const at = static_cast<std::size_t>(differing - painted.begin());
    EXPECT_TRUE(kept == painted) << kept_path << " differs from byte " << at << " on: " << painted.substr(at, 80);
}
} // namespace
