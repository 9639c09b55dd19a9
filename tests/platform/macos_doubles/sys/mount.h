/// `statfs` as macOS has it, and its names in the record of a file.
#pragma once

#include <cerrno>
#include <cstring>
#include <sys/stat.h>

#define st_atimespec st_atim
#define st_mtimespec st_mtim
#define st_ctimespec st_ctim
#define statfs fake_statfs // leaves this system's own alone

struct statfs {
    char f_fstypename[16], f_mntonname[1024];
};

/// The file system of all paths; null stands for a failing call.
inline char const* fake_file_system = nullptr;

inline int statfs(char const*, struct statfs* record) {
    if (fake_file_system == nullptr)
        return errno = ENOENT, -1;
    std::strcpy(record->f_fstypename, fake_file_system);
    std::strcpy(record->f_mntonname, "/Volumes/x");
    return 0;
}
