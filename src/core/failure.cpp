#include "core/failure.h"

#include <new>

#include "core/Hub.h"

namespace ombrel {
namespace {

struct NumberedText {
    std::int32_t number;
    std::string_view text;
};

constexpr NumberedText kTexts[] = {
    {failure::kInvalidCall, "Invalid procedure call or argument"},
    {failure::kOverflow, "Overflow"},
    {failure::kOutOfMemory, "Out of memory"},
    {failure::kSubscript, "Subscript out of range"},
    {failure::kDivisionByZero, "Division by zero"},
    {failure::kTypeMismatch, "Type mismatch"},
    {failure::kStackSpace, "Out of stack space"},
    {failure::kFileNotFound, "File not found"},
    {failure::kDeviceIO, "Device I/O error"},
    {failure::kDiskFull, "Disk full"},
    {failure::kPermissionDenied, "Permission denied"},
    {failure::kFileAccess, "Path/File access error"},
    {failure::kPathNotFound, "Path not found"},
    {failure::kNoObject, "Object variable not set"},
    {failure::kBadPattern, "Invalid pattern string"},
    {failure::kKeyExists, "This key is already associated with an element of this collection"},
};

}  // namespace

std::string_view FailureText(std::int32_t number) {
    for (const auto& row : kTexts) {
        if (row.number == number) return row.text;
    }
    return "Application-defined or object-defined error";
}

std::int32_t FailureNumber(const std::error_code& code) {
    const auto is = [&code](std::errc condition) { return code == condition; };
    if (is(std::errc::no_such_file_or_directory)) return failure::kFileNotFound;
    if (is(std::errc::no_space_on_device) || is(std::errc::file_too_large)) return failure::kDiskFull;
    if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted)) return failure::kPermissionDenied;
    if (is(std::errc::is_a_directory) || is(std::errc::file_exists) || is(std::errc::read_only_file_system)) {
        return failure::kFileAccess;
    }
    if (is(std::errc::not_a_directory) || is(std::errc::filename_too_long)) return failure::kPathNotFound;
    return failure::kDeviceIO;
}

void ReportFailure(std::string_view procedure, std::string_view object) noexcept {
    try {
        throw;
    } catch (const Failure& thrown) {
        ErrorReport(procedure, object, thrown.number(), thrown.description(), 0);
    } catch (const std::bad_alloc&) {
        ErrorReport(procedure, object, failure::kOutOfMemory, FailureText(failure::kOutOfMemory), 0);
    } catch (const std::system_error& thrown) {
        ErrorReport(procedure, object, FailureNumber(thrown.code()), thrown.what(), 0);
    } catch (const std::exception& thrown) {
        ErrorReport(procedure, object, failure::kInvalidCall, thrown.what(), 0);
    } catch (...) {
        ErrorReport(procedure, object, failure::kInvalidCall, FailureText(failure::kInvalidCall), 0);
    }
}

}  // namespace ombrel
