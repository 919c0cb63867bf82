/* The numbers of the program's resources. Read by the resource compiler too. */
#pragma once

#define MERIDEX_PROGRAM_ICON 1
#define MERIDEX_INFORMATION_ICON 2
#define MERIDEX_CLEAR_BITMAP 11
#define MERIDEX_FILE_BITMAP 12
#define MERIDEX_SETTINGS_BITMAP 13
#define MERIDEX_EXIT_BITMAP 14
#define MERIDEX_CROSS_HAIR_CURSOR 21
