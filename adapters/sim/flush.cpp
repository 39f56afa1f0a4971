#include "adapters/sim/flush.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include "core/failure.h"
#include "core/files.h"

namespace ombrel::sim {

void FlushFile(const std::string& path) {
    const auto native = NativePath(path);
#ifdef _WIN32
    const int file = _wopen(native.c_str(), _O_RDWR | _O_BINARY);
    if (file < 0) throw Failure(failure::kFileNotFound);
    const bool done = _commit(file) == 0;
    _close(file);
#else
    const int file = ::open(native.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) throw Failure(failure::kFileNotFound);
    const bool done = ::fsync(file) == 0;
    ::close(file);
#endif
    if (!done) throw Failure(failure::kDeviceIO);
}

}  // namespace ombrel::sim
