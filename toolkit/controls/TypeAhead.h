#pragma once
// Completion of a text while it is typed. Internal to the module.

#include <afx.h>

#include <optional>

/// A field that is typed into, with rows that it may be completed from.
class CompletionField
{
public:
    struct Selection
    {
        int start;
        int end;
    };

    virtual ~CompletionField() = default;

    virtual CString Text() = 0;
    /// Nothing where there is none to be told.
    virtual std::optional<Selection> Selected() = 0;
    /// Makes the first row that begins with the text, in capitals or not, the current one, whose text then stands in
    /// the field; false if there is none.
    virtual bool TakeRow(CString const & beginning) = 0;
    virtual void SetText(CString const & text) = 0;
    /// end: -1 for the end of the text.
    virtual void Select(Selection selection) = 0;
};

/// Completes the field's text by a row. The completed tail stands selected, unless the caret was within what is typed.
void CompleteTyped(CompletionField & field);

/// Whether a key allows completion: all but those that delete.
bool KeyCompletes(unsigned int virtualKey);
