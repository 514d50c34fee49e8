#pragma once
// The interface of the suite's core library, as far as the toolkit uses it.

#include <afx.h>

#include "frame/Export.h"

/// Makes a module the framework's current resource module for the life of the object. Scopes nest.
class INSTRUMENT_UI_API CResourceModuleScope
{
public:
    /// A null module stands for the application's own instance, so that its resources are found also while a library's
    /// module is current.
    explicit CResourceModuleScope(HINSTANCE module);
    CResourceModuleScope(CResourceModuleScope const &) = delete;
    CResourceModuleScope & operator=(CResourceModuleScope const &) = delete;
    /// Makes the former module current again.
    virtual ~CResourceModuleScope();

private:
    HINSTANCE m_former;
};

/// A counter that steps within a range and wraps around at its ends. It starts at 0 in an empty range.
class INSTRUMENT_UI_API CStepCounter
{
public:
    CStepCounter();
    ~CStepCounter(); // NOLINT(performance-trivially-destructible): exported

    /// From the first number to the one before `end`. Bounds in the wrong order are exchanged. A value within the new
    /// range stays, any other becomes the first. An empty range holds its first number alone.
    void set_range(int first, int end);
    /// Goes one up or down and gives the new value.
    int step(bool up);
    /// The present value.
    int operator()() const;

private:
    int m_first;
    int m_last;
    int m_value;
};

/// The form of a time as text.
enum dtf_style_t
{
    dtf_date = 0,
    /// The user's default: short date, and time with seconds.
    dtf_date_time = 1,
    dtf_date_time_without_seconds = 2,
    dtf_time = 3,
    dtf_time_without_seconds = 4
};

/// The system's text for an error code, without a line break at its end; the code as a number where the system has
/// none.
INSTRUMENT_UI_API CString SystemErrorText(unsigned long code);

/// A time in the user's regional format. Empty for a time that has no calendar form, and for an unknown style.
INSTRUMENT_UI_API CString UserDateTimeText(CTime time, dtf_style_t style);
