#include "hud/DX8Sound.h"

#include "tests/support/PluginTest.h"

namespace ombrel::test {
namespace {

class DX8SoundTest : public PluginTest {
protected:
    DX8SoundTest() {
        HaveSound("Loop/Bell.wav");
        HaveSound("Loop/Horn.wav");
        Start();
        Forget();
    }
};

TEST_F(DX8SoundTest, IsSilentWhileNoSoundIsSet) {
    DX8Sound alarm;
    alarm.Play(true);
    alarm.StopPlay();
    alarm.UnSetSound();
    EXPECT_EQ(alarm.Status(), 0);
    EXPECT_THAT(CallsOf("Sound"), IsEmpty());
}

TEST_F(DX8SoundTest, LoopsUntilItIsStopped) {
    DX8Sound alarm;
    alarm.SetSound("Loop\\Bell.wav");
    EXPECT_EQ(alarm.Status(), 0);
    alarm.Play(true);
    EXPECT_EQ(alarm.Status(), 2);
    alarm.Play(true);
    EXPECT_THAT(CallsOf("SoundPlay"), SizeIs(2));
    alarm.StopPlay();
    EXPECT_EQ(alarm.Status(), 0);
    alarm.Play(false);
    EXPECT_EQ(alarm.Status(), 1);
    alarm.UnSetSound();
    EXPECT_EQ(alarm.Status(), 0);
}

TEST_F(DX8SoundTest, ANewSoundReplacesTheOldAndAMissingOneLeavesNone) {
    DX8Sound alarm;
    alarm.SetSound("Loop\\Bell.wav");
    alarm.Play(true);
    alarm.SetSound("Loop\\Horn.wav");
    EXPECT_EQ(alarm.Status(), 0);
    alarm.Play(true);
    EXPECT_THAT(CallsOf("SoundPlay").back(), EndsWith("Loop\\Horn.wav loop=true"));

    alarm.SetSound("Loop\\Whistle.wav");
    EXPECT_THAT(TakeReports(), ElementsAre("Error #53 occured in 'SetSound' of class 'DX8Sound'"));
    Forget();
    alarm.Play(true);
    EXPECT_THAT(CallsOf("SoundPlay"), IsEmpty());
}

TEST_F(DX8SoundTest, WhatTheSoundCardRefusesIsToldOfUnderTheProcedure) {
    DX8Sound alarm;
    alarm.SetSound("Loop\\Bell.wav");
    struct Row {
        const char* operation;
        const char* procedure;
        void (*act)(DX8Sound& alarm);
    };
    const Row rows[] = {
        {"SoundBuffer.SetCurrentPosition", "Play", [](DX8Sound& a) { a.Play(true); }},
        {"SoundBuffer.Play", "Play", [](DX8Sound& a) { a.Play(true); }},
        {"SoundBuffer.Stop", "StopPlay", [](DX8Sound& a) { a.StopPlay(); }},
        {"SoundBuffer.GetStatus", "Status", [](DX8Sound& a) { EXPECT_EQ(a.Status(), 0); }},
        {"SoundDevice.CreateSoundBuffer", "SetSound", [](DX8Sound& a) { a.SetSound("Loop\\Horn.wav"); }},
    };
    for (const Row& row : rows) {
        FailNext(row.operation);
        row.act(alarm);
        EXPECT_THAT(TakeReports(),
                    ElementsAre(std::string("Error #5 occured in '") + row.procedure + "' of class 'DX8Sound'"));
    }
    EXPECT_EQ(alarm.Status(), 0) << "the sound that could not be replaced is gone";
    alarm.SetSound("Loop\\Horn.wav");
    alarm.Play(true);
    EXPECT_EQ(alarm.Status(), 2);
}

TEST_F(DX8SoundTest, WithoutASoundCardItSaysSoOnceAndStaysSilent) {
    FailNext("Platform.DirectSoundCreate");
    DX8Sound alarm;
    EXPECT_THAT(TakeReports(), ElementsAre("Error #5 occured in 'Class_Initialize' of class 'DX8Sound'"));
    alarm.SetSound("Loop\\Bell.wav");
    alarm.Play(true);
    alarm.StopPlay();
    EXPECT_EQ(alarm.Status(), 0);
}

}  // namespace
}  // namespace ombrel::test
