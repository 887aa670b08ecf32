// html_recorder.exe: the HTML viewer of the tests. Associated with .html in the test
// prefix, it appends what it was asked to open, the folder it was started in and its
// show command to the file named by TST_OPEN_RECORD, one tab-separated line each.
#include <windows.h>

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    const char* record = getenv("TST_OPEN_RECORD");
    if (record == nullptr) return 2;
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    GetStartupInfoA(&startup);
    const int show = (startup.dwFlags & STARTF_USESHOWWINDOW) != 0 ? startup.wShowWindow : -1;
    char folder[MAX_PATH] = "", temp[MAX_PATH] = "";
    GetCurrentDirectoryA(MAX_PATH, folder);
    // Leave the page's folder before the record shows: a test that has seen the record
    // may remove the folder (an uninstaller does), which a working folder would block.
    GetTempPathA(MAX_PATH, temp);
    SetCurrentDirectoryA(temp);
    FILE* file = fopen(record, "a");
    if (file == nullptr) return 3;
    fprintf(file, "%s\t%s\t%d\n", argc > 1 ? argv[1] : "", folder, show);
    fclose(file);
    return 0;
}
