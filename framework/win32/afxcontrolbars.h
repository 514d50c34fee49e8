#pragma once
// The extended frames.

#include <afxframewndex.h>
#include <afxmdichildwndex.h>
#include <afxmdiframewndex.h>
