// Procedures that every class calls: the chat writers, reports, formatting, colour names, folders, sounds.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ombrel {

// The version that the plug-in tells the player and writes into settings files.
inline constexpr std::string_view kVersionText = "1.1.0.1";

// Chat writers. A line goes through the chat pipeline like any other, in the plug-in's own chat type; before there is a
// pipeline it is dropped.
void wtcw(std::string_view text);      // "<Ombrel> " and the text
void wtcw_raw(std::string_view text);  // the text as it stands

// An error goes to the main chat window past all rules.
void wtcw_error(std::string_view text);

// A debug line, while DebugMode is on: to the debug log, and past all rules to chat unless DebugSilent. Where building
// the text costs anything, ask DebugMode first.
void wtcw_debug(std::string_view text);

// Writes a failure to chat and to the error log. `object` is a class name, "!" and a module name, or "@" and a form
// name; line 0 is unknown. A report from a procedure called "Debug" is kept out of chat.
void ErrorReport(std::string_view procedure, std::string_view object, std::int32_t number, std::string_view description,
                 std::int32_t line) noexcept;

// Set while a log is written, so that a failure of that does not come back to it. A log that could not be written stays
// busy for the rest of the process: reports still reach chat, but not the file.
extern bool ErrorLogBusy;
extern bool DebugLogBusy;

// The user's documents and the application data of all users. When the system has no such folder, an error text stands
// in its place, which no file can be made under.
std::string GetMyDoc();
std::string GetDataFolder();

// The folder of the plug-in's own file.
std::string ProgramPath();

// A time span as text. style 0 is "1:05:07" without leading zeros or empty fields, 1 is "01:05:07", 10 is in words;
// days show only in words. A negative span shows its size with a "-" when showSign is set, and as zeros otherwise.
std::string ConvTime(double seconds, std::int32_t style = 0, bool showSign = false);

// A whole number with groups of thousands. -1 with allowInfinite is "Infinate".
std::string FormatCount(double value, bool allowInfinite);

double RoundUp(double x);
double RoundDown(double x);
double FMod(double a, double b);  // of different signs, b is taken off once more: FMod(0, 60) is -60
double SignOf(double x);

// HUD colours by name. alpha 0 is clear, each step a tenth, 10 and anything else opaque. Returns 0xAARRGGBB; a name
// that is not known is white.
std::int32_t ConvertColor(std::string_view name, std::int32_t alpha);
std::int32_t GetHUDOutlineColor(std::string_view name);   // black, or white around black
std::int32_t GetColorFromIcon(std::string_view name);     // icon of a HUD colour's marker, 101 when it is not known
std::string_view GetColorFromHUDIcon(std::int32_t icon);  // and back, "White" for any other number

// Plays a wave file of the Sounds folder in the background. One that is missing gets an error line.
void PlayWavFile(std::string_view file);

// Fill the sound choices of the view with the files in Sounds and Sounds\Loop, "None" first.
void GetSoundList();
void GetSoundLoopList();

// A click of the left button at a point of the game window; the cursor goes back to where it was.
void SendClick(std::int32_t x, std::int32_t y);

}  // namespace ombrel
