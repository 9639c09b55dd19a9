/// This system's calls, and the flag that refuses links; here it does so for the last component alone.
#pragma once

#include_next <fcntl.h>

#define O_NOFOLLOW_ANY O_NOFOLLOW
