// The text side of smOpenDocu: the folder of a file chosen in the open-file dialog and
// the message for a failed open.
#pragma once

#include <cstdint>
#include <string>

namespace ts {

constexpr const char* kDocuKey = "Software\\Halvern Software\\Tessarin\\TessarinPath";
constexpr const char* kDocuNotFound = "HTML file not found.\nPlease check DocuPath in the registry";

// The chosen full path without its trailing file title: the folder with its final
// backslash ("C:\help\x.html", "x.html" -> "C:\help\"). A title that does not end the
// path leaves the whole path.
std::string chosenFolder(const std::string& path, const std::string& fileTitle);

// The message for the result of opening a page from the chosen folder, or nullptr
// where the library stays silent: 0 out of memory, 2 file not found, 3 path not found.
const char* docuOpenFailureText(intptr_t result);

}  // namespace ts
