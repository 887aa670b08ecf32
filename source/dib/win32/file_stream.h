// The bitmap library's one file stream: files opened with OpenFile, read and written
// with the classic calls, for BMP and GIF alike.
#pragma once

#include <windows.h>

#include "dib/core/byte_stream.h"
#include "dib/core/dib_host.h"

namespace ts::dib {

class FileSource : public ByteSource {
public:
    explicit FileSource(HFILE file) : file_(file) {}
    int64_t read(void* buffer, uint64_t count) override;
    int64_t seek(int64_t offset, SeekFrom from) override;

private:
    HFILE file_;
};

class FileSink : public ByteSink {
public:
    explicit FileSink(HFILE file) : file_(file) {}
    int64_t write(const void* buffer, uint64_t count) override;

private:
    HFILE file_;
};

// An OpenFile handle closed at the end of the scope. A null name opens nothing.
class OpenedFile {
public:
    OpenedFile() = default;
    OpenedFile(LPCSTR name, UINT style) { open(name, style); }
    void open(LPCSTR name, UINT style) {
        OFSTRUCT info{};
        file_ = name ? OpenFile(name, &info, style) : HFILE_ERROR;
    }
    ~OpenedFile() {
        if (ok() && nonZero()) _lclose(file_);
    }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;
    bool ok() const { return file_ != HFILE_ERROR; }
    // The GIF functions test the handle against 0 only, as they always did: a failed
    // open passes and its reads and writes fail instead.
    bool nonZero() const { return file_ != 0; }
    HFILE handle() const { return file_; }

private:
    HFILE file_ = HFILE_ERROR;
};

constexpr UINT kOpenRead = OF_READ;                  // 0x0000
constexpr UINT kCreateWrite = OF_CREATE | OF_WRITE;  // 0x1001

// The messages of a BMP function that opens a named file.
struct FileMessages {
    const char* function;
    const char* noName;  // null name
    const char* failed;  // the file cannot be opened
};

// Opens the named file; false after the matching message.
bool openNamed(Host& host, OpenedFile& file, LPCSTR name, UINT style, const FileMessages& messages);

}  // namespace ts::dib
