// A character in the world without any rules, and words for what tests of chat do: lines of the game, rules, switches.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "chat/ChatTextHandler.h"
#include "tests/support/PluginTest.h"

namespace ombrel::test {

class ChatTest : public PluginTest {
protected:
    void SetUp() override {
        LogIn();
        for (host::List* rules : {options().ChatFilter.get(), options().ChatCustom.get(), options().ChatAlias.get()})
            rules->Clear();
        for (host::List* switches : {options().ChatOptions.get(), options().ChatColor.get()}) {
            for (std::int32_t row = 0; row < switches->Count(); ++row) switches->SetData(0, row, false);
        }
        for (host::Checkbox* box : {options().ChatLogAFK.get(), options().FillMana.get(), options().SplitPeas.get(),
                                    options().SpellsItem.get(), options().ChatLogEnable.get()})
            box->SetChecked(false);
        Forget();
    }

    static ChatTextHandler& chat() { return *Vars::ChatTextHandler; }

    // A line of the game in the main window. Returns whether the client shows it.
    bool Shown(const std::string& text, std::int32_t type) { return !client.ChatText(text + "\n", type, 1); }

    // A line of the game that the plug-in writes anew, and what it writes.
    std::vector<Line> Written(const std::string& text, std::int32_t type) {
        Forget();
        Shown(text, type);
        return lines;
    }

    // A line that the player types. Returns whether the client gets it as it stands.
    bool Passes(const std::string& text) { return !client.ChatParser(text); }

    // The commands that the plug-in sent to the client.
    std::vector<std::string> Commands() const {
        std::vector<std::string> commands;
        for (const std::string& call : CallsOf("InvokeChatParser")) commands.push_back(call.substr(call.find('=') + 1));
        return commands;
    }

    // The windows, from 0, where the client shows a chat type.
    static void ShowType(std::int32_t type, std::initializer_list<std::int32_t> windows) {
        for (const std::int32_t window : windows) chat().SetTargetList(window, type, true);
    }

    static void OwnLinesGoTo(std::initializer_list<std::int32_t> windows) {
        for (std::int32_t window = 0; window < 5; ++window) chat().SetTargetList(window, 32, false);
        ShowType(32, windows);
    }

    static void Switch(std::string_view option, bool on = true) {
        options().ChatOptions->SetData(0, options().FindName(option, "ChatOptions"), on);
    }

    static void ColorRule(std::string_view name, std::string_view window, std::string_view color,
                          std::string_view sound = "None") {
        host::List& list = *options().ChatColor;
        const std::int32_t row = options().FindName(name, "ChatColor");
        ASSERT_GE(row, 0) << name;
        list.SetData(0, row, true);
        list.SetData(2, row, std::string(window));
        list.SetData(3, row, chat().GetIconFromColor(color), 1);
        list.SetData(4, row, std::string(sound));
    }

    static void CustomRule(std::string_view pattern, std::string_view window, std::string_view type,
                           std::string_view color, std::string_view action = "", std::string_view sound = "None") {
        host::List& list = *options().ChatCustom;
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, true);
        list.SetData(1, row, std::string(pattern));
        list.SetData(2, row, std::string(window));
        list.SetData(3, row, std::string(type));
        list.SetData(4, row, chat().GetIconFromColor(color), 1);
        list.SetData(5, row, std::string(sound));
        list.SetData(6, row, std::string(action));
    }

    static void FilterWord(std::string_view word, std::string_view mode, std::string_view action) {
        host::List& list = *options().ChatFilter;
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, true);
        list.SetData(1, row, std::string(word));
        list.SetData(2, row, std::string(mode));
        list.SetData(3, row, std::string(action));
    }

    static void Alias(std::string_view abbreviation, std::string_view full) {
        host::List& list = *options().ChatAlias;
        const std::int32_t row = list.AddRow();
        list.SetData(0, row, true);
        list.SetData(1, row, std::string(abbreviation));
        list.SetData(2, row, std::string(full));
    }
};

}  // namespace ombrel::test
