#include "dialogs/DialogFade.h"

#include <algorithm>

bool CDialogFade::Start(int alpha, std::int32_t milliseconds)
{
    m_target = std::clamp(alpha, 0, opaque);
    std::int32_t const change = m_target - m_alpha;
    if (change == 0)
        return false;
    std::int32_t const steps = milliseconds / tick_period;
    m_step = change / (steps != 0 ? steps : 1);
    return true;
}

std::optional<std::uint8_t> CDialogFade::Tick()
{
    if (m_step == 0)
        return std::nullopt;
    std::int32_t alpha = m_alpha + m_step;
    bool const arrived = m_step < 0 ? alpha <= m_target : alpha >= m_target;
    if (arrived)
    {
        alpha = m_target;
        m_step = 0;
    }
    return static_cast<std::uint8_t>(alpha);
}
