// Identifiers of the dialog templates and their controls, shared by the
// dialogs and the tests that drive them.
#pragma once

#ifndef IDC_STATIC
#define IDC_STATIC (-1)
#endif

#define IDD_ABOUT 100
#define IDD_INPUT_BOX 101
#define IDD_LOCATIONS 102
#define IDD_YOUR_PROGRAM 103
#define IDD_SKIN_CHOOSER 104

#define IDC_ABOUT_PICTURE 200
#define IDC_ABOUT_VERSION 201

#define IDC_PROMPT 210
#define IDC_BOX_TEXT 211
#define IDC_DESKTOP_FOLDER 212
#define IDC_EXPLORER 213
#define IDC_INSPECTOR 214

#define IDC_WORD 220
#define IDC_EXCEL 221
#define IDC_POWERPOINT 222
#define IDC_PUBLISHER 223
#define IDC_ACCESS 224
#define IDC_WALLPAPER 225
#define IDC_WEBLIST 226
#define IDC_WORD_PATH 230
#define IDC_EXCEL_PATH 231
#define IDC_POWERPOINT_PATH 232
#define IDC_PUBLISHER_PATH 233
#define IDC_ACCESS_PATH 234
#define IDC_WALLPAPER_PATH 235
#define IDC_WEBLIST_PATH 236
#define IDC_SAME_FOR_ALL 240
#define IDC_STRETCH 241
#define IDC_PASSWORD 242

#define IDC_PROGRAM 250
#define IDC_BROWSE 251

#define IDC_SKIN_FOLDER 260
#define IDC_GET_FOLDER 261
#define IDC_SKIN_FILES 262
#define IDC_SKIN_PREVIEW 263
#define IDC_CHANGE_SKIN 264
#define IDC_ADJUST_SKIN 265
#define IDC_EXIT 266
