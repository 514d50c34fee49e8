#pragma once
// Ids of the workbench's resources, controls and commands.

#define IDI_WORKBENCH 1
#define IDR_ACCELERATORS 2

#define IDC_RECORDINGS 1001
#define IDC_WAVEFORM 1002
#define IDC_STATUS_LINE 1003

#define ID_OPEN_FILES 40001
#define ID_OPEN_FOLDER 40002
#define ID_RELOAD 40003
#define ID_CLOSE_WORKBENCH 40004
