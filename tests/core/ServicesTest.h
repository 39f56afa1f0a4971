// The common services over the system of a simulated client, without a plug-in: a clock that stands still, an empty
// folder.
#pragma once

#include "core/Hub.h"
#include "core/files.h"
#include "tests/support/PluginTest.h"

namespace ombrel {

class ServicesTest : public testing::Test, protected test::GameSession {
protected:
    ServicesTest() {
        client.system.plugin_folder = documents.path().string();
        client.clock.SetEpoch(std::int64_t{1720098309} * 1000);  // 4 July 2024, 13:05:09
        Vars::Platform = &client.platform();
    }
    ~ServicesTest() override {
        Vars::Platform = {};
        Vars::DebugMode = Vars::DebugSilent = false;
        ErrorLogBusy = DebugLogBusy = false;
    }

    std::string Path(std::string_view name) const { return documents.path().string() + "\\" + std::string(name); }
};

}  // namespace ombrel
