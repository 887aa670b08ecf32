// The text side of smOpenDocu (no Windows calls, tested natively).
#include "docu_paths.h"

namespace ts {

std::string chosenFolder(const std::string& path, const std::string& fileTitle) {
    if (fileTitle.size() > path.size() || path.compare(path.size() - fileTitle.size(), fileTitle.size(), fileTitle) != 0)
        return path;
    return path.substr(0, path.size() - fileTitle.size());
}

const char* docuOpenFailureText(intptr_t result) {
    switch (result) {
    case 0: return "\a The operatingsystem is out of memory!";
    case 2: return "File not found!";
    case 3: return "Path not found!";
    default: return nullptr;
    }
}

}  // namespace ts
