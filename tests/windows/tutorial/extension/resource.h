#pragma once
// Resources of the extension module. The program's own have other numbers, but for the greeting.

#define IDS_SHAPES_GREETING 20001
#define IDD_SHAPES_SIZE 20002
#define IDC_SHAPES_SIZE 20003
#define IDS_SHAPES_ONLY 20010
