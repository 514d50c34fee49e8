#include "GoldenImage.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tests
{
namespace
{
constexpr std::size_t bytes_per_pixel = 3;
constexpr std::size_t headers_size = sizeof(BITMAPFILEHEADER) + sizeof(BITMAPINFOHEADER);

using Bytes = std::vector<char>;

std::size_t RowSize(int width)
{
    return (static_cast<std::size_t>(width) * bytes_per_pixel + 3) / 4 * 4;
}

/// A 24-bit bitmap file, its lowest row first.
Bytes ToFile(Canvas const & canvas)
{
    std::size_t const rowSize = RowSize(canvas.Width());
    std::size_t const size = headers_size + rowSize * static_cast<std::size_t>(canvas.Height());

    BITMAPFILEHEADER file = {};
    file.bfType = 0x4D42;
    file.bfSize = static_cast<DWORD>(size);
    file.bfOffBits = headers_size;
    BITMAPINFOHEADER info = {};
    info.biSize = sizeof info;
    info.biWidth = canvas.Width();
    info.biHeight = canvas.Height();
    info.biPlanes = 1;
    info.biBitCount = 8 * bytes_per_pixel;

    Bytes bytes(size, 0);
    std::memcpy(bytes.data(), &file, sizeof file);
    std::memcpy(bytes.data() + sizeof file, &info, sizeof info);
    for (int y = 0; y < canvas.Height(); ++y)
    {
        char * pixel = bytes.data() + headers_size + rowSize * static_cast<std::size_t>(canvas.Height() - 1 - y);
        for (int x = 0; x < canvas.Width(); ++x, pixel += bytes_per_pixel)
        {
            COLORREF const colour = canvas.Pixel(x, y);
            pixel[0] = static_cast<char>(GetBValue(colour));
            pixel[1] = static_cast<char>(GetGValue(colour));
            pixel[2] = static_cast<char>(GetRValue(colour));
        }
    }
    return bytes;
}

Bytes ReadFile(std::filesystem::path const & path)
{
    std::ifstream stream(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(stream), {});
}

/// Whether the file could be written.
bool WriteFile(std::filesystem::path const & path, Bytes const & bytes)
{
    std::error_code error;
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return !stream.fail();
}

/// How two files of this kind differ.
std::string Difference(Bytes const & expected, Bytes const & actual, Canvas const & canvas)
{
    if (expected.empty())
        return "there is no kept picture";
    if (expected.size() < headers_size)
        return "the kept picture is cut off";
    BITMAPINFOHEADER info = {};
    std::memcpy(&info, expected.data() + sizeof(BITMAPFILEHEADER), sizeof info);
    if (info.biWidth != canvas.Width() || info.biHeight != canvas.Height() || expected.size() != actual.size())
    {
        return "the kept picture has " + std::to_string(info.biWidth) + " x " + std::to_string(info.biHeight) +
               " pixels, this one " + std::to_string(canvas.Width()) + " x " + std::to_string(canvas.Height());
    }
    int differing = 0;
    CPoint first(0, 0);
    for (int y = 0; y < canvas.Height(); ++y)
    {
        std::size_t const row =
            headers_size + RowSize(canvas.Width()) * static_cast<std::size_t>(canvas.Height() - 1 - y);
        for (int x = 0; x < canvas.Width(); ++x)
        {
            std::size_t const pixel = row + static_cast<std::size_t>(x) * bytes_per_pixel;
            if (std::memcmp(&expected[pixel], &actual[pixel], bytes_per_pixel) == 0)
                continue;
            if (differing++ == 0)
                first = CPoint(x, y);
        }
    }
    if (differing == 0)
        return "the headers of the kept picture differ";
    return std::to_string(differing) + " pixels differ, the first at (" + std::to_string(first.x) + ", " +
           std::to_string(first.y) + ")";
}

bool UpdateWanted()
{
    char const * const value = std::getenv("UPDATE_GOLDEN");
    return value != nullptr && std::strcmp(value, "1") == 0;
}
} // namespace

void ExpectGolden(Canvas const & canvas, char const * name)
{
    std::string const fileName = std::string(name) + ".bmp";
    std::filesystem::path const kept = std::filesystem::path(TEST_DATA_DIR) / "golden" / fileName;
    Bytes const actual = ToFile(canvas);
    Bytes const expected = ReadFile(kept);
    if (UpdateWanted())
    {
        bool const written = expected == actual || WriteFile(kept, actual);
        ADD_FAILURE() << kept.string() << (written ? " is up to date now" : " can't be written");
        return;
    }
    if (expected == actual)
        return;
    std::filesystem::path const current = std::filesystem::path("golden-actual") / fileName;
    bool const written = WriteFile(current, actual);
    ADD_FAILURE() << name << ": " << Difference(expected, actual, canvas) << "; "
                  << (written ? "what was painted is in " : "what was painted can't be written to ")
                  << current.string();
}
} // namespace tests
