#pragma once
// Ids of the module's resources, for C++ and for the resource compiler. The values are fixed: hosts load the strings
// by number through the extension modules' search chain.

// Icons. Each has frames of 32x32 and 16x16 pixels.
#define TOOLKIT_ICON_STANDARD 121
#define TOOLKIT_ICON_SCOPE 123
#define TOOLKIT_ICON_DISC 124
#define TOOLKIT_ICON_DIAL 125
#define TOOLKIT_ICON_SELECT_ALL 126
#define TOOLKIT_ICON_SELECT_NONE 127
#define TOOLKIT_ICON_OK 128
#define TOOLKIT_ICON_CANCEL 129
#define TOOLKIT_ICON_BROWSE 131

// The shell of every dynamic popup menu: one popup with one placeholder.
#define TOOLKIT_MENU_GENERIC_POPUP 120
#define TOOLKIT_COMMAND_GENERIC_POPUP_ENTRY 32771

// Drop-down of the browse edit.
#define TOOLKIT_DIALOG_MULTISELECT 130
#define TOOLKIT_CONTROL_MULTISELECT 1016

// Chooser of the display language.
#define TOOLKIT_DIALOG_LANGUAGE 340
#define TOOLKIT_CONTROL_LANGUAGE_LIST 1044

// Texts for hosts: complaints about dates and times.
#define TOOLKIT_STRING_DATE_INVALID 1
#define TOOLKIT_STRING_TIME_INVALID 2
#define TOOLKIT_STRING_ONE_DATE_INVALID 3
#define TOOLKIT_STRING_ONE_TIME_INVALID 4
#define TOOLKIT_STRING_TIME_SPAN_INVALID 5
#define TOOLKIT_STRING_DATE_IN_FUTURE 6
#define TOOLKIT_STRING_TIME_SPAN_IN_FUTURE 7

// Texts of lists and of the multiselect.
#define TOOLKIT_STRING_EMPTY_LIST 8
#define TOOLKIT_STRING_SELECT_ALL 9
#define TOOLKIT_STRING_SELECT_NONE 10
#define TOOLKIT_STRING_OK 11
#define TOOLKIT_STRING_CANCEL 12
#define TOOLKIT_STRING_ALL_ITEMS 13
#define TOOLKIT_STRING_NO_ITEMS 14

// Names of the 32 scope colours: the first id plus the colour's index.
#define TOOLKIT_STRING_SCOPE_COLOUR_FIRST 100
#define TOOLKIT_STRING_SCOPE_COLOUR_LAST 131

// Names of the nine spectrogram scales: the first id plus the scale's index; and the name of an unknown scale.
#define TOOLKIT_STRING_SPECTROGRAM_SCALE_FIRST 200
#define TOOLKIT_STRING_SPECTROGRAM_SCALE_LAST 208
#define TOOLKIT_STRING_SPECTROGRAM_SCALE_UNKNOWN 250
