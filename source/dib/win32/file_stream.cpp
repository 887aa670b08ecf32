// Byte sources and sinks over the classic file calls: _lread/_lwrite for header-sized
// pieces, _hread/_hwrite for pixel data, in pieces a long count can carry.
#include "dib/win32/file_stream.h"

namespace ts::dib {
namespace {

constexpr uint64_t kSmall = 0x10000;
constexpr uint64_t kPiece = 0x40000000;

}  // namespace

bool openNamed(Host& host, OpenedFile& file, LPCSTR name, UINT style, const FileMessages& messages) {
    if (!name) {
        host.report(messages.function, messages.noName);
        return false;
    }
    file.open(name, style);
    if (!file.ok()) host.report(messages.function, messages.failed);
    return file.ok();
}

int64_t FileSource::read(void* buffer, uint64_t count) {
    if (count < kSmall) {
        UINT n = _lread(file_, buffer, UINT(count));
        return n == UINT(HFILE_ERROR) ? -1 : int64_t(n);
    }
    uint64_t done = 0;
    while (done < count) {
        long want = long(count - done < kPiece ? count - done : kPiece);
        long n = _hread(file_, static_cast<char*>(buffer) + done, want);
        if (n == HFILE_ERROR) return done ? int64_t(done) : -1;
        done += uint64_t(n);
        if (n < want) break;
    }
    return int64_t(done);
}

int64_t FileSource::seek(int64_t offset, SeekFrom from) {
    LONG at = _llseek(file_, LONG(offset), int(from));
    return at == HFILE_ERROR ? -1 : int64_t(at);
}

int64_t FileSink::write(const void* buffer, uint64_t count) {
    if (count < kSmall) {
        UINT n = _lwrite(file_, static_cast<LPCCH>(buffer), UINT(count));
        return n == UINT(HFILE_ERROR) ? -1 : int64_t(n);
    }
    uint64_t done = 0;
    while (done < count) {
        long want = long(count - done < kPiece ? count - done : kPiece);
        long n = _hwrite(file_, static_cast<LPCCH>(buffer) + done, want);
        if (n == HFILE_ERROR) return done ? int64_t(done) : -1;
        done += uint64_t(n);
        if (n < want) break;
    }
    return int64_t(done);
}

}  // namespace ts::dib
