// Failures, and the trap that every procedure has.
//
// A procedure traps its own failures: it reports them under its name and ends, its result stays at the default, and the
// caller carries on. Nothing that is thrown leaves the plug-in.
//
//     void TimerHandler::MainHUDTime_Timeout()
//     try {
//         Vars::HUDMainHandler->UpdateHUD();
//     } catch (...) {
//         ReportFailure("MainHUDTime_Timeout", "TimerHandler");
//     }
//
// In constructors and destructors the `try` stands inside the body, since one around the whole throws again at its end.
#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace ombrel {

// The classic numbers of run-time failures, as players know them from reports.
namespace failure {
constexpr std::int32_t kInvalidCall = 5;
constexpr std::int32_t kOverflow = 6;
constexpr std::int32_t kOutOfMemory = 7;
constexpr std::int32_t kSubscript = 9;
constexpr std::int32_t kDivisionByZero = 11;
constexpr std::int32_t kTypeMismatch = 13;
constexpr std::int32_t kStackSpace = 28;
constexpr std::int32_t kFileNotFound = 53;
constexpr std::int32_t kDeviceIO = 57;
constexpr std::int32_t kDiskFull = 61;
constexpr std::int32_t kPermissionDenied = 70;
constexpr std::int32_t kFileAccess = 75;
constexpr std::int32_t kPathNotFound = 76;
constexpr std::int32_t kNoObject = 91;
constexpr std::int32_t kBadPattern = 93;
constexpr std::int32_t kKeyExists = 457;
}  // namespace failure

// The text that goes with one of the numbers above.
std::string_view FailureText(std::int32_t number);

// The number that stands for an error of the system.
std::int32_t FailureNumber(const std::error_code& code);

class Failure : public std::exception {
public:
    explicit Failure(std::int32_t number) : Failure(number, std::string(FailureText(number))) {}
    Failure(std::int32_t number, std::string description) : number_(number), description_(std::move(description)) {}

    std::int32_t number() const { return number_; }
    const std::string& description() const { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

private:
    std::int32_t number_;
    std::string description_;
};

// Reports the failure in flight. Call it only from a handler. `object` is a class name, or "!" and a module name. A
// failure inside the report itself ends there.
void ReportFailure(std::string_view procedure, std::string_view object) noexcept;

// Counts how deep a procedure is nested in itself. At the limit the next call is failure 28, long before the client's
// stack of 1 MB is in danger.
class DepthGuard {
public:
    DepthGuard(std::int32_t& depth, std::int32_t limit) : depth_(depth) {
        if (depth_ >= limit) throw Failure(failure::kStackSpace);
        ++depth_;
    }
    ~DepthGuard() { --depth_; }
    DepthGuard(const DepthGuard&) = delete;
    DepthGuard& operator=(const DepthGuard&) = delete;

private:
    std::int32_t& depth_;
};

}  // namespace ombrel
