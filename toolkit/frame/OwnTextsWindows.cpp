#include "frame/OwnTexts.h"

#include <afxwin.h>

unsigned short LanguageInForce()
{
    LANGID const language = ::GetThreadUILanguage();
    LANGID const ofLocale = LANGIDFROMLCID(::GetThreadLocale());
    // Where the system has no languages of the user interface, a host gives its threads another locale, which resources
    // follow there.
    bool const chosen = language != ::GetUserDefaultUILanguage();
    return chosen || ofLocale == ::GetUserDefaultLangID() ? language : ofLocale;
}
