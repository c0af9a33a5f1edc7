// Ids of the extension DLL's resources and of the test program's in the same blocks.
#define EXT_ICON 701
#define EXT_DIALOG 702
#define EXT_FRAME 703
#define EXT_BITMAP 704
#define EXT_CURSOR 705
#define EXT_LIST 706
#define EXT_STRING 29952
#define EXT_STRING_OF_BOTH 29953
#define EXT_STRING_OF_PROGRAM 29954
#define EXT_STRING_OF_NOBODY 29955
#define EXT_STRING_WITH_PLACES 29956
