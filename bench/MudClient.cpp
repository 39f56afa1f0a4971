#include "bench/MudClient.h"

#include <arpa/inet.h>
#include <pty.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <system_error>
#include <thread>

namespace ombrel::bench {
namespace {

constexpr std::size_t kKeptEnd = 4000;
constexpr unsigned kSecondsToLive = 120;

[[noreturn]] void Throw(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

class Descriptor {
public:
    explicit Descriptor(int number, const char* what) : number_(number) {
        if (number < 0) Throw(what);
    }
    ~Descriptor() { close(number_); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    operator int() const { return number_; }

private:
    int number_;
};

// Sends all lines to the first that calls, and waits until it has hung up.
void Serve(int listening, std::string_view lines) {
    const int caller = accept(listening, nullptr, nullptr);
    if (caller < 0) return;
    while (!lines.empty()) {
        const ssize_t sent = send(caller, lines.data(), lines.size(), MSG_NOSIGNAL);
        if (sent <= 0) break;
        lines.remove_prefix(static_cast<std::size_t>(sent));
    }
    shutdown(caller, SHUT_WR);
    std::array<char, 4096> answer;
    while (recv(caller, answer.data(), answer.size(), 0) > 0) {
    }
    close(caller);
}

int PortOf(int listening) {
    sockaddr_in address{};
    socklen_t size = sizeof address;
    if (getsockname(listening, reinterpret_cast<sockaddr*>(&address), &size) != 0) Throw("getsockname");
    return ntohs(address.sin_port);
}

[[noreturn]] void Become(std::vector<std::string>& command, const std::filesystem::path& home) {
    if (chdir(home.c_str()) != 0) _exit(126);
    setenv("HOME", home.c_str(), 1);
    setenv("TERM", "xterm", 1);
    setenv("LANG", "C.UTF-8", 1);
    alarm(kSecondsToLive);
    std::vector<char*> arguments;
    for (std::string& argument : command) arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    execvp(arguments[0], arguments.data());
    _exit(127);
}

}  // namespace

ClientRun RunClient(std::vector<std::string> command, const std::filesystem::path& home, std::string_view lines) {
    const Descriptor listening(socket(AF_INET, SOCK_STREAM, 0), "socket");
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (bind(listening, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) Throw("bind");
    if (listen(listening, 1) != 0) Throw("listen");
    const std::string port = std::to_string(PortOf(listening));
    for (std::string& argument : command) {
        if (const auto at = argument.find("PORT"); at != std::string::npos) argument.replace(at, 4, port);
    }

    winsize size{40, 120, 0, 0};
    int number = -1;
    const pid_t client = forkpty(&number, nullptr, nullptr, &size);
    if (client == 0) Become(command, home);
    const Descriptor terminal(number, "forkpty");
    std::thread server([&] { Serve(listening, lines); });

    ClientRun run;
    std::array<char, 65536> shown;
    for (ssize_t count = 0; (count = read(terminal, shown.data(), shown.size())) > 0;) {
        run.shown.append(shown.data(), static_cast<std::size_t>(count));
        if (run.shown.size() > 2 * kKeptEnd) run.shown.erase(0, run.shown.size() - kKeptEnd);
    }
    int status = 0;
    rusage usage{};
    const pid_t ended = wait4(client, &status, 0, &usage);
    shutdown(listening, SHUT_RDWR);
    server.join();
    if (ended != client || !WIFEXITED(status)) throw std::runtime_error(command[0] + " did not end by itself");
    if (WEXITSTATUS(status) == 127) throw std::runtime_error(command[0] + " is not installed");

    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    run.seconds = seconds(usage.ru_utime) + seconds(usage.ru_stime);
    return run;
}

}  // namespace ombrel::bench
