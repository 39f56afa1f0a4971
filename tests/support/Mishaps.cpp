#include "tests/support/Mishaps.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <random>

namespace ombrel::test {

FullDisk::FullDisk() : before_handler_(signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit tight = {4096, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
}

FullDisk::~FullDisk() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, before_handler_);
}

int Kills() {
    const char* wanted = std::getenv("OMBREL_KILLS");
    return wanted ? std::atoi(wanted) : 20;
}

void KillWhileDoing(const std::function<void(int)>& deed) {
    static std::mt19937 random(std::random_device{}());
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        for (int i = 0;; ++i) deed(i);
    }
    usleep(static_cast<useconds_t>(random() % 7000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

}  // namespace ombrel::test
