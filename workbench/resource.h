#pragma once
// Ids of the workbench's resources, controls and commands.

#define IDI_WORKBENCH 1
#define IDR_ACCELERATORS 2
#define IDI_STATUS_OK 3
#define IDI_STATUS_DAMAGED 4
#define IDI_STATUS_UNREADABLE 5
#define IDR_MAIN_MENU 6

#define IDD_SETTINGS 101
#define IDD_DETAILS 102

// The main window.
#define IDC_RECORDINGS 1001
#define IDC_WAVEFORM 1002
#define IDC_STATUS_LINE 1003
#define IDC_MEASURE_PANEL 1004
#define IDC_SPECTROGRAM 1005
#define IDC_SCALE 1006
#define IDC_CLOCK 1007

// The settings.
#define IDC_START_GROUP 1101
#define IDC_START_NOTE 1102
#define IDC_START_FOLDERS 1103
#define IDC_ADD_FOLDER 1104
#define IDC_REMOVE_FOLDER 1105
#define IDC_DIALOG_GROUP 1106
#define IDC_FADE_IN 1107
#define IDC_DRAG_BACKGROUND 1108
#define IDC_OPACITY_NOTE 1109
#define IDC_OPACITY 1110

// The details: a label and a text for each line.
#define IDC_DETAIL_LABEL_FIRST 1201
#define IDC_DETAIL_TEXT_FIRST 1221

#define ID_OPEN_FILES 40001
#define ID_OPEN_FOLDER 40002
#define ID_RELOAD 40003
#define ID_CLOSE_WORKBENCH 40004
#define ID_READ_AGAIN 40005
#define ID_SHOW_DETAILS 40006
#define ID_SET_REFERENCE 40007
#define ID_MARK_ALL 40008
#define ID_MARK_NONE 40009
#define ID_SHOW_SETTINGS 40010
#define ID_CHOOSE_LANGUAGE 40011
#define ID_CLOSE_DIALOGS 40012

// The items of open dialogs in the window menu.
#define ID_DIALOG_FIRST 41000
#define ID_DIALOG_LAST 41099
