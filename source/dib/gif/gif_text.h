// The GIF codec's messages.
#pragma once

namespace ts::gif {

// The texts are German and in Windows-1252, the code page the ANSI message box shows
// them in: \xFC is u-umlaut, \xE4 a-umlaut. Keep them byte for byte.
namespace text {
inline constexpr char kNotReadable[] = "GIF-Datei nicht lesbar!";
inline constexpr char kNotGif[] = "Keine GIF-Datei!";
// printf format: the three version characters.
inline constexpr char kUnknownVersion[] = "Unbekannte GIF-Version: %c%c%c\n\rWeiter?";
inline constexpr char kVersionTitle[] = "CONV_GIFDLL";
inline constexpr unsigned kVersionStyle = 0x2021;  // OK/Cancel, question icon, task-modal
inline constexpr char kNoMemoryDib[] = "Zu wenig Speicher f\xFCr DIB vorhanden!";
inline constexpr char kPrematureEnd[] = "Vorzeitiges Ende der GIF-Datei!";
inline constexpr char kIllegalBlock[] = "Illegaler GIF-Block!";
inline constexpr char kWrongColorInfo[] = "Falsche Farbinformation im Image Descriptor";
inline constexpr char kNoColorTable[] = "Dieses GIF-Bild besitzt keine Farbtabelle!";
inline constexpr char kNoMemoryBitmap[] = "Zu wenig Speicher f\xFCr Bitmap vorhanden!";
inline constexpr char kNoMemoryRowMap[] = "Zu wenig Speicher f\xFCr Zuordnungstabelle vorhanden!";
inline constexpr char kReadLoop[] = "Fehler in Leseschleife!";
// printf format: the code in decimal.
inline constexpr char kInvalidCode[] = "Ung\xFCltiger LZW-Code %d!";
inline constexpr char kLzwError[] = "Fehler im LZW-Teil des GIF-Bildes!";
inline constexpr char kNoDib[] = "Keine DIB vorhanden!";
inline constexpr char kCannotCreate[] = "GIF-Datei konnte nicht erzeugt werden!";
inline constexpr char kUnknownFormat[] = "Unbekanntes GIF-Format!";
inline constexpr char kRleError[] = "Fehler in RLE-Bitmap!";
inline constexpr char kSixteenBitError[] = "Fehler in 16-Bit-DIB!";
inline constexpr char kReductionError[] = "Fehler bei Farbreduzierung!";
// "Pr\xE4" and "fixtabelle" are split: "\xE4f" would read as one hex escape.
inline constexpr char kNoMemoryPrefix[] = "Zu wenig Speicher f\xFCr Pr\xE4" "fixtabelle vorhanden!";
}  // namespace text

}  // namespace ts::gif
