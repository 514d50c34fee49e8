#include "SpokenLanguage.h"

#include "frame/OwnTexts.h"

unsigned short LanguageInForce()
{
    return substitutes::s_language;
}
