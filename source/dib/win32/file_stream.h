// Byte sources and sinks over the classic file calls (OpenFile handles).
#pragma once

#include <windows.h>

#include "dib/core/byte_stream.h"

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

// An OpenFile handle closed at the end of the scope.
class OpenedFile {
public:
    OpenedFile(LPCSTR name, UINT style) {
        OFSTRUCT info{};
        file_ = OpenFile(name, &info, style);
    }
    ~OpenedFile() {
        if (ok()) _lclose(file_);
    }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;
    bool ok() const { return file_ != HFILE_ERROR; }
    HFILE handle() const { return file_; }

private:
    HFILE file_;
};

}  // namespace ts::dib
