#include "TemplateTexts.h"

#include <map>
#include <optional>

#include "logic/DialogTexts.h"

namespace workbench
{

namespace
{

std::optional<DialogTexts> TextsOf(UINT templateId)
{
    WCHAR const * const name = MAKEINTRESOURCEW(templateId);
    HINSTANCE const module = AfxFindResourceHandle(name, RT_DIALOG);
    HRSRC const resource = ::FindResourceW(module, name, RT_DIALOG);
    HGLOBAL const loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    auto const * const bytes = loaded != nullptr ? static_cast<std::byte const *>(::LockResource(loaded)) : nullptr;
    return bytes != nullptr ? ReadDialogTexts({bytes, ::SizeofResource(module, resource)}) : std::nullopt;
}

} // namespace

CString ShowTemplateTexts(CWnd & dialog, UINT templateId)
{
    std::optional<DialogTexts> const texts = TextsOf(templateId);
    if (!texts)
    {
        return {};
    }
    // Several labels can have one identifier; they stand in the order of the template.
    std::map<WORD, HWND> last;
    for (DialogTexts::Control const & control : texts->controls)
    {
        auto const id = static_cast<WORD>(control.id);
        auto & window = last[id];
        window = ::GetWindow(window != nullptr ? window : dialog.m_hWnd, window != nullptr ? GW_HWNDNEXT : GW_CHILD);
        while (window != nullptr && static_cast<WORD>(::GetDlgCtrlID(window)) != id)
        {
            window = ::GetWindow(window, GW_HWNDNEXT);
        }
        if (window != nullptr && !control.text.empty())
        {
            ::SetWindowTextW(window, control.text.c_str());
        }
    }
    return texts->caption.c_str();
}

CString TemplateCaption(UINT templateId)
{
    std::optional<DialogTexts> const texts = TextsOf(templateId);
    return texts ? texts->caption.c_str() : L"";
}

} // namespace workbench
