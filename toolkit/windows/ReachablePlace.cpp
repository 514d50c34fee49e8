#include "windows/ReachablePlace.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace
{
// Differences of stored coordinates can pass the range of an int.
using Length = std::int64_t;

constexpr Length least_caption_width = 100;

Length Overlap(Length from, Length to, Length otherFrom, Length otherTo)
{
    return std::min(to, otherTo) - std::max(from, otherFrom);
}

bool IsEmpty(ScreenArea const & screen)
{
    return screen.work.right <= screen.work.left || screen.work.bottom <= screen.work.top;
}

/// How far the two lie apart in one direction; 0 if they meet.
double Gap(Length from, Length to, Length otherFrom, Length otherTo)
{
    return static_cast<double>(std::max<Length>(0, -Overlap(from, to, otherFrom, otherTo)));
}

/// The length for another resolution, rounded.
Length Scaled(Length length, int dpi, int formerDpi)
{
    return (length * dpi + formerDpi / 2) / formerDpi;
}

/// The place next to `from` at which a length fits between the ends; the first one if it doesn't fit.
Length Fitted(Length from, Length length, Length first, Length end)
{
    return std::max(first, std::min(from, end - length));
}

LONG AsCoordinate(Length value)
{
    return static_cast<LONG>(
        std::clamp<Length>(value, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
}
} // namespace

int FingerprintOf(std::span<ScreenArea const> screens)
{
    // FNV-1a over the numbers.
    std::uint32_t hash = 2166136261U;
    auto const add = [&hash](LONG number) {
        for (int shift = 0; shift < 32; shift += 8)
        {
            hash = (hash ^ (static_cast<std::uint32_t>(number) >> shift & 0xFFU)) * 16777619U;
        }
    };
    for (ScreenArea const & screen : screens)
    {
        add(screen.work.left);
        add(screen.work.top);
        add(screen.work.right);
        add(screen.work.bottom);
        add(screen.dpi);
    }
    auto const fingerprint = static_cast<std::int32_t>(hash);
    return fingerprint != 0 ? fingerprint : 1;
}

ScreenArea const * ScreenOf(CRect const & place, std::span<ScreenArea const> screens)
{
    ScreenArea const * best = nullptr;
    double mostCovered = 0.0;
    double leastDistance = 0.0;
    for (ScreenArea const & screen : screens)
    {
        if (IsEmpty(screen))
        {
            continue;
        }
        CRect const & work = screen.work;
        Length const across = Overlap(place.left, place.right, work.left, work.right);
        Length const down = Overlap(place.top, place.bottom, work.top, work.bottom);
        double const covered = across > 0 && down > 0 ? static_cast<double>(across) * static_cast<double>(down) : 0.0;
        double const aside = Gap(place.left, place.right, work.left, work.right);
        double const above = Gap(place.top, place.bottom, work.top, work.bottom);
        double const distance = aside * aside + above * above;
        bool const better = covered != mostCovered ? covered > mostCovered : covered == 0.0 && distance < leastDistance;
        if (best == nullptr || better)
        {
            best = &screen;
            mostCovered = covered;
            leastDistance = distance;
        }
    }
    return best;
}

bool IsCaptionReachable(CRect const & place, std::span<ScreenArea const> screens, int captionHeight)
{
    Length const wanted = std::clamp<Length>(static_cast<Length>(place.right) - place.left, 0, least_caption_width);
    Length const height =
        std::clamp<Length>(static_cast<Length>(place.bottom) - place.top, 0, std::max(captionHeight, 0));
    return std::any_of(screens.begin(), screens.end(), [&](ScreenArea const & screen) {
        return !IsEmpty(screen) && place.top >= screen.work.top && place.top + height <= screen.work.bottom &&
               Overlap(place.left, place.right, screen.work.left, screen.work.right) >= wanted;
    });
}

CRect ReachablePlace(StoredPlace const & stored, std::span<ScreenArea const> screens, WindowShape const & shape)
{
    CRect const place(std::min(stored.rect.left, stored.rect.right), std::min(stored.rect.top, stored.rect.bottom),
                      std::max(stored.rect.left, stored.rect.right), std::max(stored.rect.top, stored.rect.bottom));
    ScreenArea const * const screen = ScreenOf(place, screens);
    bool const reachable = IsCaptionReachable(place, screens, shape.captionHeight);
    if (screen == nullptr || (reachable && stored.screens == FingerprintOf(screens)))
    {
        return place;
    }
    auto const width = static_cast<Length>(place.right) - place.left;
    auto const height = static_cast<Length>(place.bottom) - place.top;
    Length newWidth = width;
    Length newHeight = height;
    CRect const & work = screen->work;
    if (shape.sizable)
    {
        if (stored.dpi > 0 && screen->dpi > 0 && stored.dpi != screen->dpi)
        {
            newWidth = Scaled(width, screen->dpi, stored.dpi);
            newHeight = Scaled(height, screen->dpi, stored.dpi);
        }
        newWidth = std::min(newWidth, static_cast<Length>(work.right) - work.left);
        newHeight = std::min(newHeight, static_cast<Length>(work.bottom) - work.top);
    }
    if (reachable && newWidth == width && newHeight == height)
    {
        return place;
    }
    Length const left = Fitted(place.left, newWidth, work.left, work.right);
    Length const top = Fitted(place.top, newHeight, work.top, work.bottom);
    return CRect(AsCoordinate(left), AsCoordinate(top), AsCoordinate(left + newWidth), AsCoordinate(top + newHeight));
}
