// The classic file calls of the GIF exports.
#include "win32_gif_file.h"

#include <climits>

namespace ts::gif {

ClassicFile::ClassicFile(LPCSTR name, UINT style) : handle_(HFILE_ERROR) {
    OFSTRUCT info{};
    if (name != nullptr) handle_ = OpenFile(name, &info, style);
}

ClassicFile::~ClassicFile() {
    if (handle_ != 0 && handle_ != HFILE_ERROR) _lclose(handle_);
}

std::size_t ClassicFile::read(void* to, std::size_t count) {
    if (handle_ == 0 || handle_ == HFILE_ERROR) return 0;
    long got = _hread(handle_, to, static_cast<long>(count));
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

bool ClassicFile::readRest(Block& into, std::size_t& size) {
    size = 0;
    if (handle_ == 0 || handle_ == HFILE_ERROR) return true;
    LONG here = _llseek(handle_, 0, FILE_CURRENT);
    LONG end = _llseek(handle_, 0, FILE_END);
    if (here == HFILE_ERROR || end == HFILE_ERROR || end < here) return true;
    _llseek(handle_, here, FILE_BEGIN);
    if (!into.allocate(static_cast<std::uint64_t>(end - here))) return false;
    size = read(into.bytes(), static_cast<std::size_t>(end - here));
    return true;
}

bool ClassicFile::write(const void* from, std::size_t count) {
    if (handle_ == 0 || handle_ == HFILE_ERROR || count > static_cast<std::size_t>(LONG_MAX)) return false;
    long written = _hwrite(handle_, static_cast<LPCCH>(from), static_cast<long>(count));
    return written == static_cast<long>(count);
}

}  // namespace ts::gif
