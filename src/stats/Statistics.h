// The character's experience: how much was earned, at what rate, how far it is to the next level.
//
// The server tells two totals, in two messages. This class works on the difference between what it saw last and what it
// sees now, so a total that comes late or twice does no harm.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <string>

#include "core/time.h"

namespace ombrel {

class Statistics {
public:
    Statistics();
    ~Statistics();
    Statistics(const Statistics&) = delete;
    Statistics& operator=(const Statistics&) = delete;

    void InitStatistics();  // at login, when the server's totals are in
    void ResetSession();
    void UpdateTime();  // each second
    void UpdateXP();
    void UpdateAvgXP();  // each minute

    // Takes over the server's totals; `showMessage` lets the change be told in chat.
    void ChangeXP(bool showMessage);
    void DisplayXP();

    void Level();  // the level has changed
    void IncKills();
    void UpdateAllegiance();
    std::string TimetoLevel();

    Date SessionStartTime = 0.0;
    std::int32_t SessionSec = 0;
    double SessionXPStart = 0.0;
    double SessionXP = 0.0;
    double SessionXPHour = 0.0;
    double SessionXPMin = 0.0;
    Date TotalStartTime = 0.0;
    std::int32_t TotalSec = 0;
    double TotalXPStart = 0.0;
    double TotalXP = 0.0;
    double TotalXPHour = 0.0;
    double TotalXPMin = 0.0;
    double CharTotalXP = 0.0;
    double CharUnXP = 0.0;
    double LastTotalXP = 0.0;
    double LastUnXP = 0.0;
    double XPTotalChange = 0.0;
    double XPUnChange = 0.0;
    double MonsterXP = 0.0;  // estimated value of the last kill
    double XPAtThisLevel = 0.0;
    double XPAtNextLevel = 0.0;
    double XPToNextLevel = 0.0;
    double XPForThisLevel = 0.0;
    double KillsLevel = 0.0;  // like kills to the next level, -1 when unknown
    double BarPercent = 0.0;  // of this level, one decimal
    double LastMinuteXP = 0.0;
    std::deque<double> MinuteSamples;  // oldest first
    double FiveMinAvg = 0.0;           // per hour
    bool ShowXPChange = false;         // the main HUD shows the last change in full
    bool XPChangeOn = false;           // the player wants the change on the main HUD
    std::string TimeToLevelText;
    std::int32_t AllegFollowers = 0;
    std::int32_t MyFollowers = 0;
    std::int32_t Kills = 0;
    std::int32_t Deaths = 0;
    std::int32_t Spells = 0;
    std::int32_t Melee = 0;

private:
    void ComputeLevel();
    void ShowBar();
    void EstimateTime();
};

// Total experience at which a level is reached, by the game's own curve: exact up to 126, rounded to nearest above.
double ExperienceOfLevel(double level, std::int32_t character_level);

}  // namespace ombrel
