// Debuffs on creatures: which spell is timed, for how long, and where it shows.
#include "hud/HUDTargetHandler.h"

#include "tests/hud/TargetTest.h"

namespace ombrel::test {
namespace {

constexpr host::Id kOther = 0x5DB00202;

class Debuffs : public TargetTest {
protected:
    void SetUp() override {
        TargetTest::SetUp();
        Drudge();
        Drudge(kOther);
        client.ObjectSelected(kTarget);
        Forget();
    }

    static void Claim(std::int32_t level) { options().HudTargetLevel->SetSelected(level - 1); }

    // The debuffs on a creature, as "114: Blade Vulnerability Other VI, 210".
    static std::vector<std::string> On(host::Id id = kTarget) {
        std::vector<std::string> texts;
        const auto creature = canvas().debuffs().find(id);
        if (creature == canvas().debuffs().end()) return texts;
        for (const auto& [family, spell] : creature->second.Spells) {
            texts.push_back(fmt::format("{}: {}, {}", family, spell->Name, spell->timeRemaining));
            EXPECT_EQ(spell->sTarget, std::to_string(id));
        }
        return texts;
    }
};

TEST_F(Debuffs, AreTheSpellsOfTheLevelThatThePlayerClaims) {
    const struct {
        std::int32_t code, level;
        const char* debuff;
    } rows[] = {{23, 6, "38: Vulnerability Other VI, 210"},
                {23, 7, "42: Futility, 240"},
                {44, 1, "110: Fire Vulnerability Other I, 60"},
                {44, 7, "110: Inferno's Gift, 240"},
                {46, 2, "112: Piercing Vulnerability Other II, 90"},
                {46, 7, "112: Archer's Gift, 240"},
                {48, 6, "114: Blade Vulnerability Other VI, 210"},
                {48, 7, "114: Swordsman's Gift, 240"},
                {50, 3, "102: Acid Vulnerability Other III, 120"},
                {50, 7, "102: Olthoi's Gift, 240"},
                {52, 4, "106: Cold Vulnerability Other IV, 150"},
                {52, 7, "106: Gelidite's Gift, 240"},
                {54, 5, "108: Lightning Vulnerability Other V, 180"},
                {54, 7, "108: Astyrrian's Gift, 240"},
                {56, 6, "116: Imperil Other VI, 210"},
                {56, 7, "116: Gossamer Flesh, 240"}};
    for (const auto& row : rows) {
        Claim(row.level);
        TellEffect(row.code);
        EXPECT_THAT(On(), ElementsAre(row.debuff)) << row.code;
        canvas().RemoveDebuff(kTarget);
    }
}

TEST_F(Debuffs, ComeFromNothingElse) {
    Claim(6);
    for (const std::int32_t code : {0, 4, 22, 24, 43, 45, 47, 55, 57, 138, -1}) TellEffect(code);
    EXPECT_THAT(canvas().debuffs(), IsEmpty());

    // A level that is not chosen makes a spell that nobody knows, which is over at once.
    Vars::DebugMode = true;
    options().HudTargetLevel->SetSelected(-1);
    TellEffect(48);
    EXPECT_THAT(canvas().debuffs(), IsEmpty());
    EXPECT_TRUE(
        CalledInOrder({fmt::format("AddSpell {} -1 -1", kTarget), fmt::format("RemoveDebuffSpell {} -1", kTarget)}));
    Vars::DebugMode = false;
}

TEST_F(Debuffs, GiveWayToStrongerAndAreRenewedByEqualOnes) {
    Claim(3);
    TellEffect(48);
    Advance(20s);
    Claim(2);
    TellEffect(48);
    EXPECT_THAT(On(), ElementsAre("114: Blade Vulnerability Other III, 100")) << "a weaker one changes nothing";
    Claim(3);
    TellEffect(48);
    EXPECT_THAT(On(), ElementsAre("114: Blade Vulnerability Other III, 120"));
    Claim(7);
    TellEffect(48);
    EXPECT_THAT(On(), ElementsAre("114: Swordsman's Gift, 240"));
    Claim(6);
    TellEffect(48);
    EXPECT_THAT(On(), ElementsAre("114: Swordsman's Gift, 240"));
}

TEST_F(Debuffs, StayWithTheirCreature) {
    Claim(6);
    TellEffect(48);
    TellEffect(56);
    TellEffect(44, kOther);
    Advance(10s);
    client.ObjectSelected(kOther);
    EXPECT_THAT(On(kTarget), ElementsAre("114: Blade Vulnerability Other VI, 200", "116: Imperil Other VI, 200"));
    EXPECT_THAT(On(kOther), ElementsAre("110: Fire Vulnerability Other VI, 200"));

    client.ReleaseObject(kOther);
    EXPECT_THAT(On(kOther), IsEmpty());
    EXPECT_EQ(canvas().Object(), nullptr);
    Advance(199s);
    EXPECT_THAT(On(kTarget), ElementsAre("114: Blade Vulnerability Other VI, 1", "116: Imperil Other VI, 1"));
    Advance(1s);
    EXPECT_THAT(canvas().debuffs(), IsEmpty()) << "counted down without a target";
}

TEST_F(Debuffs, FollowThePlayersClock) {
    Claim(6);
    TellEffect(48);
    client.clock.Shift(-100'000);
    Advance(1s);
    EXPECT_THAT(On(), ElementsAre("114: Blade Vulnerability Other VI, 309"));
    client.clock.Shift(400'000);
    Advance(1s);
    EXPECT_THAT(On(), IsEmpty());
}

// The strip.

TEST_F(Debuffs, ShowAtTheirPlacesWithTheMinutesLeft) {
    Claim(6);
    const std::int32_t icon_top = canvas().frame.height() - 2 - 16 - 1 - 16;
    const struct {
        std::int32_t code, place, image;
    } rows[] = {{23, 0, 100668331}, {56, 1, 100668293}, {48, 2, 100668348}, {46, 3, 100668347},
                {44, 4, 100668291}, {52, 5, 100668292}, {54, 6, 100668346}, {50, 7, 100668344}};
    for (const auto& row : rows) {
        canvas().RemoveDebuff(kTarget);
        TellEffect(row.code);
        const std::int32_t left = 3 + 17 * row.place;
        const auto drawn = Drawn();
        EXPECT_THAT(drawn, Contains(fmt::format("DrawPortalImage image={} rect=[{}, {}, {}, {}]", row.image, left,
                                                icon_top, left + 16, icon_top + 16)))
            << row.code;
        EXPECT_THAT(drawn, Contains(fmt::format("DrawText rect=[{}, {}, {}, {}] color=-1 format=1 text=4", left,
                                                icon_top + 17, left + 16, icon_top + 33)));
    }
}

TEST_F(Debuffs, AreDrawnEachSecondWithTheMinutesBegun) {
    Claim(6);
    TellEffect(48);
    TellEffect(56);
    Forget();
    Advance(1s);
    EXPECT_THAT(DrawnTexts(), ElementsAre("4", "4"));
    Advance(28s);
    EXPECT_THAT(DrawnTexts(), Each("4")) << "181 seconds are 4 minutes";
    Advance(1s);
    EXPECT_THAT(DrawnTexts(), ElementsAre("3", "3"));
    Advance(59s);
    Forget();
    Advance(1s);
    EXPECT_THAT(DrawnTexts(), ElementsAre("2", "2"));
    TellEffect(48);
    EXPECT_THAT(DrawnTexts(), ElementsAre("2", "4")) << "armour before blades";
    Advance(120s);
    Forget();
    Advance(90s);
    EXPECT_THAT(canvas().debuffs(), IsEmpty());
    EXPECT_THAT(Drawn(), Contains(StartsWith("Fill"))) << "the strip is empty again";
    Advance(5s);
    EXPECT_THAT(Drawn(), IsEmpty());
}

TEST_F(Debuffs, ShowWithTheirCreatureOnly) {
    Claim(6);
    TellEffect(48, kOther);
    EXPECT_THAT(Drawn(), IsEmpty());
    client.ObjectSelected(kOther);
    EXPECT_THAT(DrawnImages(), Contains(StartsWith("100668348")));
    client.ObjectSelected(kTarget);
    EXPECT_THAT(DrawnImages(), Each(StartsWith("100667446"))) << "only the creature";
    Claim(7);
    TellEffect(23);
    EXPECT_THAT(On(), ElementsAre("42: Futility, 240"));
    EXPECT_THAT(DrawnImages(), Each(StartsWith("100667446"))) << "a debuff of another family has no place";
}

TEST_F(Debuffs, FailByName) {
    FailNext("Choice.Selected");
    TellEffect(48);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'Debuff' of class 'HUDTargetHandler'"));
    FailNext("Spells.ByID");
    TellEffect(48);
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'GetFamily' of class 'SpellFilterHandler'"));
}

}  // namespace
}  // namespace ombrel::test
