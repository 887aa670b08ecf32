// The codec's messages are kept in Windows-1252, the code page of the ANSI message
// box: the umlauts must be the single bytes 0xFC and 0xE4, not UTF-8 pairs.
#include <gtest/gtest.h>

#include <string>

#include "gif_text.h"

namespace text = ts::gif::text;

TEST(GifText, UmlautsAreWindows1252Bytes) {
    EXPECT_EQ(std::string(text::kNoMemoryDib), std::string("Zu wenig Speicher f") + char(0xFC) + "r DIB vorhanden!");
    EXPECT_EQ(std::string(text::kNoMemoryBitmap), std::string("Zu wenig Speicher f") + char(0xFC) + "r Bitmap vorhanden!");
    EXPECT_EQ(std::string(text::kNoMemoryRowMap),
              std::string("Zu wenig Speicher f") + char(0xFC) + "r Zuordnungstabelle vorhanden!");
    EXPECT_EQ(std::string(text::kNoMemoryPrefix),
              std::string("Zu wenig Speicher f") + char(0xFC) + "r Pr" + char(0xE4) + "fixtabelle vorhanden!");
    EXPECT_EQ(std::string(text::kInvalidCode), std::string("Ung") + char(0xFC) + "ltiger LZW-Code %d!");
}

TEST(GifText, NoMessageCarriesUtf8) {
    const char* all[] = {text::kNotReadable, text::kNotGif, text::kUnknownVersion, text::kVersionTitle,
                         text::kNoMemoryDib, text::kPrematureEnd, text::kIllegalBlock,
                         text::kWrongColorInfo, text::kNoColorTable, text::kNoMemoryBitmap,
                         text::kNoMemoryRowMap, text::kReadLoop, text::kInvalidCode, text::kLzwError,
                         text::kNoDib, text::kCannotCreate, text::kUnknownFormat, text::kRleError,
                         text::kSixteenBitError, text::kReductionError, text::kNoMemoryPrefix};
    for (const char* message : all)
        for (const char* c = message; *c != 0; ++c) {
            unsigned byte = static_cast<unsigned char>(*c);
            EXPECT_TRUE(byte < 0x80 || byte == 0xFC || byte == 0xE4) << message;
        }
}

TEST(GifText, VersionQuestionAndTitle) {
    EXPECT_STREQ(text::kUnknownVersion, "Unbekannte GIF-Version: %c%c%c\n\rWeiter?");
    EXPECT_STREQ(text::kVersionTitle, "CONV_GIFDLL");
    EXPECT_EQ(text::kVersionStyle, 0x2021u);
}
