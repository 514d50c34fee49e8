#pragma once
// Identifiers of the resources in print.rc.

#define IDR_PRINT 700
