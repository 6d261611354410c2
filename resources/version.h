/* The version in each spelling that is shown. The resource compiler reads this, C++ and, line by
   line, packaging/pack for the installer. */
#define VERSION_NUMBERS 4, 0, 0, 2
#define VERSION_SHORT "4.00b2"
#define VERSION_LONG "4.00 Beta 2"
#define VERSION_ABOUT "4.00b2 - Beta 2"
#define VERSION_SPLASH "4.00 - BETA 2"
#define VERSION_DATE "5th May 1998"
