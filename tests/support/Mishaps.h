// What may befall a machine while the plug-in writes: a disk that is full, a process that is killed.
#pragma once

#include <sys/resource.h>

#include <functional>

namespace ombrel::test {

// While it lives, no file of the process can grow beyond a few thousand bytes.
class FullDisk {
public:
    FullDisk();
    ~FullDisk();
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*before_handler_)(int);
    rlimit before_{};
};

// How many kills a test tries: as OMBREL_KILLS says, or some.
int Kills();

// Does a deed again and again, with 0, 1, 2 and so on, in a process that is killed after a few moments.
void KillWhileDoing(const std::function<void(int)>& deed);

}  // namespace ombrel::test
