// How options take effect that are not simply read where they matter: a subsystem keeps a copy, or a HUD shows them.
#pragma once

#include <cstdint>
#include <string_view>

namespace ombrel {

class ControlHandler;

// What a change of an option does before the settings are saved.
struct Option {
    std::string_view procedure = {};  // the name that reports of its failure bear
    void (*apply)(ControlHandler& controls, std::int32_t which) = nullptr;
    std::int32_t which = 0;  // of several options that differ in their number alone
};

namespace effect {

// HUDs, by their rows.
void UpdateMain(ControlHandler& controls, std::int32_t);
void CreateHud(ControlHandler& controls, std::int32_t row);
void SetIconSize(ControlHandler& controls, std::int32_t);
void ColorTarget(ControlHandler& controls, std::int32_t);
void StartRefresh(ControlHandler& controls, std::int32_t);
void StartDownTimer(ControlHandler& controls, std::int32_t);
void StartUpTimer(ControlHandler& controls, std::int32_t);

// The plug-in's own lines: windows from 0.
void PassOutput(ControlHandler& controls, std::int32_t window);

// Vitals: 0 health, 1 stamina, 2 mana.
void LoadAlarm(ControlHandler& controls, std::int32_t vital);

// Percentages of one-touch healing: 0 block, 1 success, 2 cheap, 3 fallback. Each stands in an edit and on a slider.
void ReadPercent(ControlHandler& controls, std::int32_t percent);
void ReadSlider(ControlHandler& controls, std::int32_t percent);

void RebuildSpells(ControlHandler& controls, std::int32_t);
void PassEventStart(ControlHandler& controls, std::int32_t);
void SetIdleTime(ControlHandler& controls, std::int32_t);

}  // namespace effect
}  // namespace ombrel
