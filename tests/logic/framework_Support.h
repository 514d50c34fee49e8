#pragma once
// Expectations on exceptions that are thrown by pointer.

#include <afx.h>

#include <gtest/gtest.h>

/// Whether the statement throws an Exception by pointer. The exception is deleted.
template <class Exception, class Statement> bool ThrowsPointer(Statement statement)
{
    try
    {
        statement();
    }
    catch (Exception * exception)
    {
        exception->Delete();
        return true;
    }
    return false;
}

#define EXPECT_INVALID_ARG(statement) EXPECT_TRUE((ThrowsPointer<CInvalidArgException>([&] { statement; })))
