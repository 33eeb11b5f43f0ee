// Control ids of the test dialog.
#pragma once

#define ID_SOURCE 101
#define ID_SINGLE 102
#define ID_TITLE 103
#define ID_NOTES 104
#define ID_METHOD 105
#define ID_ASCENDING 106
#define ID_DESCENDING 107
#define ID_SAVEFILE 108
#define ID_ORDERBUTTON 109
