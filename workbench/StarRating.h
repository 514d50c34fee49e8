#pragma once

#include "list/XListCtrl.h"

/// A rating as stars, of which one is pressed to rate. The cell is a combo cell of the ratings below it: its present id
/// is the rating, and a press beside the stars opens the choice of words.
class CStarRating : public CXListCellKind
{
public:
    static constexpr int star_count = 3;

    /// dotsPerInch: which its lengths follow.
    explicit CStarRating(UINT dotsPerInch = USER_DEFAULT_SCREEN_DPI) : m_dotsPerInch(static_cast<int>(dotsPerInch)) {}

    /// Ratings are in the order of the list of words: none, then from the best to the worst.
    static int StarsOf(int rating) { return rating > 0 && rating <= star_count ? star_count + 1 - rating : 0; }
    static int RatingOf(int stars) { return stars > 0 && stars <= star_count ? star_count + 1 - stars : 0; }
    /// Where a star of a cell stands, counted from 0 at the left.
    CRect StarRect(CRect const & cell, int star) const;

    void Paint(XLISTCTRLDATA const & cell, CDC & dc, CRect const & rect, COLORREF text, COLORREF background) override;
    /// The star that stands for the present rating takes it away.
    std::optional<Change> Press(XLISTCTRLDATA & cell, CRect const & rect, CPoint point) override;
    /// Control, Shift and a digit: so many stars.
    std::optional<Change> Key(XLISTCTRLDATA & cell, unsigned int key) override;
    /// Better ratings are the greater ones.
    std::optional<long long> SortValue(XLISTCTRLDATA const & cell) const override;

private:
    static Change Rate(XLISTCTRLDATA & cell, int stars);
    int Scaled(int pixels) const { return ::MulDiv(pixels, m_dotsPerInch, USER_DEFAULT_SCREEN_DPI); }

    int m_dotsPerInch;
};
