// What is measured, one file a subject.
#pragma once

namespace ombrel::bench {

void AddSorting();   // a chat line to its row, beside other matchers
void AddChatRoad();  // the whole road of a chat line
void AddRules();     // a player's rules, beside two clients of text games
void AddMessages();  // server messages that don't matter
void AddSettings();  // saving the settings, beside bare XML
void AddSpells();    // a second of the spell lists
void AddReplay();    // 100,000 lines through a session
void AddDisplays();  // refreshes and mouse moves, beside drawing every line

}  // namespace ombrel::bench
