#pragma once
// The arithmetic of a window's alpha fade, ticked by whoever owns the timer.

#include <cstdint>
#include <optional>

#include "frame/Export.h"

/// The alpha of one window, 0 (not to be seen) to 255 (opaque), and the fade that changes it. A fade goes from the
/// present alpha to its target in equal steps, one a tick.
class INSTRUMENT_UI_API CDialogFade
{
public:
    /// The alpha of a window that nothing shines through.
    static constexpr int opaque = 255;
    /// Milliseconds between two ticks.
    static constexpr int tick_period = 25;

    /// The present alpha.
    std::uint8_t Alpha() const { return m_alpha; }
    /// Sets the present alpha. A fade that runs goes on from there toward its old target, which is meant.
    void SetAlpha(std::uint8_t alpha) { m_alpha = alpha; }

    /// Begins a fade from the present alpha, in place of one that runs. alpha is brought into 0 to 255. False if that
    /// is the present alpha: then there is nothing to tick for, and a fade that runs keeps its step toward the new
    /// target. Less time than one tick takes one tick.
    ///
    /// A change of fewer units than ticks has the step 0, so that it ends at once and leaves the alpha as it is; it is
    /// meant that the step is not rounded up.
    bool Start(int alpha, std::int32_t milliseconds);

    /// One tick: the alpha to be shown, which the caller hands to SetAlpha; nothing if no fade runs and the ticks may
    /// end. So the ticks end one after the target is reached.
    std::optional<std::uint8_t> Tick();

    /// Where the last fade goes.
    int Target() const { return m_target; }
    /// Alpha a tick; 0 while no fade runs.
    int Step() const { return m_step; }

private:
    std::uint8_t m_alpha = opaque;
    std::int32_t m_target = 0;
    std::int32_t m_step = 0; // alpha a tick; 0 while no fade runs
};
