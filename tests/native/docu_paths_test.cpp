// The text side of the documentation launcher: the chosen folder and the messages.
#include <gtest/gtest.h>

#include <string>

#include "docu_paths.h"

TEST(DocuPaths, TheChosenFolderKeepsItsFinalBackslash) {
    EXPECT_EQ(ts::chosenFolder("C:\\help\\x.html", "x.html"), "C:\\help\\");
    EXPECT_EQ(ts::chosenFolder("C:\\x.html", "x.html"), "C:\\");
    EXPECT_EQ(ts::chosenFolder("\\\\server\\share\\docs\\page.html", "page.html"), "\\\\server\\share\\docs\\");
}

TEST(DocuPaths, ATitleThatDoesNotEndThePathLeavesTheWholePath) {
    EXPECT_EQ(ts::chosenFolder("C:\\help\\x.html", ""), "C:\\help\\x.html");
    EXPECT_EQ(ts::chosenFolder("C:\\help\\x.html", "y.html"), "C:\\help\\x.html");
    EXPECT_EQ(ts::chosenFolder("x", "longer.html"), "x");
}

TEST(DocuPaths, FailureTextsOfTheOpen) {
    EXPECT_EQ(std::string(ts::docuOpenFailureText(0)), "\a The operatingsystem is out of memory!");
    EXPECT_EQ(std::string(ts::docuOpenFailureText(2)), "File not found!");
    EXPECT_EQ(std::string(ts::docuOpenFailureText(3)), "Path not found!");
    for (intptr_t silent : {1, 4, 5, 8, 11, 26, 31, 32, 33, 42}) EXPECT_EQ(ts::docuOpenFailureText(silent), nullptr);
}
