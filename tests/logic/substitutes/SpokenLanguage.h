#pragma once

namespace substitutes
{
/// The language in force for the module's own texts.
inline unsigned short s_language = 0x0409;
} // namespace substitutes
