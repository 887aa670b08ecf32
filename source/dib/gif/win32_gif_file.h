// The classic file calls under the GIF exports: OpenFile, _hread, _hwrite, _lclose.
#pragma once

#include <windows.h>

#include <cstddef>
#include <cstdint>

#include "gif_memory.h"

namespace ts::gif {

// A file opened with OpenFile, closed when it goes out of scope. As the library always
// did, only a handle of 0 counts as "not opened": HFILE_ERROR passes and its reads
// and writes simply fail.
class ClassicFile {
public:
    ClassicFile(LPCSTR name, UINT style);
    ~ClassicFile();
    ClassicFile(const ClassicFile&) = delete;
    ClassicFile& operator=(const ClassicFile&) = delete;

    bool opened() const { return handle_ != 0; }
    // Reads up to count bytes; how many came.
    std::size_t read(void* to, std::size_t count);
    // The bytes from the current position to the end, in a block of memory (null with
    // size 0 when nothing could be read); false when the block cannot be had.
    bool readRest(Block& into, std::size_t& size);
    // True when all count bytes were written.
    bool write(const void* from, std::size_t count);

private:
    HFILE handle_;
};

constexpr UINT kOpenRead = OF_READ;                  // 0x0000
constexpr UINT kCreateWrite = OF_CREATE | OF_WRITE;  // 0x1001

}  // namespace ts::gif
