#pragma once
// The pictures of tool bars and menus.

#include <afxwin.h>

#include <vector>

/// A row of pictures of one size. They are drawn in the system's present colours: in pictures of 16 or 256 colours
/// black and the greys of a button's edges stand for those of a button. Sizes are those of the resource, at 96 dpi;
/// what is drawn follows the screen.
class FRAMEWORK_API CMFCToolBarImages : public CObject
{
    DECLARE_DYNCREATE(CMFCToolBarImages)

public:
    CMFCToolBarImages();
    CMFCToolBarImages(CMFCToolBarImages const &) = delete;
    CMFCToolBarImages & operator=(CMFCToolBarImages const &) = delete;
    ~CMFCToolBarImages() override;

    /// Adds the bitmap of the resource, or replaces what is there. FALSE if there is none.
    BOOL Load(UINT uiResID, HINSTANCE hinstRes = nullptr, BOOL bAdd = FALSE);
    BOOL LoadStr(LPCTSTR lpszResourceName, HINSTANCE hinstRes = nullptr, BOOL bAdd = FALSE);
    /// The bitmap's pictures are copied; gives the number of the first, or -1.
    int AddImage(HBITMAP hbmp, BOOL bSetBitPerPixel = FALSE);
    int AddImage(const CMFCToolBarImages & imageList, int nIndex);
    int AddIcon(HICON hIcon, BOOL bAlphaBlend = FALSE);
    BOOL DeleteImage(int iImage);
    void Clear();

    BOOL Draw(CDC * pDC, int x, int y, int iImageIndex, BOOL bHilite = FALSE, BOOL bDisabled = FALSE,
              BOOL bIndeterminate = FALSE, BOOL bShadow = FALSE, BOOL bInactive = FALSE, BYTE alphaSrc = 255);
    /// An icon of the picture, which the caller destroys; null if there is none.
    HICON ExtractIcon(int nIndex);

    BOOL IsValid() const;
    int GetCount() const;
    /// bDest: as it is drawn on this screen.
    SIZE GetImageSize(BOOL bDest = FALSE) const;
    /// For pictures that are added from here on.
    void SetImageSize(SIZE sizeImage, BOOL bUpdateCount = FALSE);
    COLORREF GetTransparentColor() const;
    /// The colour that is left out of pictures without transparency of their own; gives the former one.
    COLORREF SetTransparentColor(COLORREF clrTransparent);
    BOOL GetMapTo3DColors() const;
    void SetMapTo3DColors(BOOL bMapTo3DColors);
    int GetResourceOffset(UINT uiResId) const;

private:
    struct Image
    {
        std::vector<DWORD> pixels; // alpha, red, green, blue; not multiplied
        bool mapped = false;       // its greys are the system's
    };
    struct Resource
    {
        UINT id;
        int first;
    };

    std::vector<DWORD> Rendered(Image const & image, CSize size, bool disabled, BYTE alpha) const;

    CSize m_size;
    COLORREF m_transparent;
    BOOL m_mapColours;
    std::vector<Image> m_images;
    std::vector<Resource> m_resources;
};
