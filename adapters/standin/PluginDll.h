// The plug-in's DLL, loaded into the simulated client through the stand-in framework.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "adapters/sim/Client.h"
#include "adapters/standin/Site.h"

namespace ombrel::standin {

// The DLL while it is loaded. Throws std::runtime_error when it can't be.
class PluginDll {
public:
    explicit PluginDll(const std::filesystem::path& path);
    ~PluginDll();
    PluginDll(const PluginDll&) = delete;
    PluginDll& operator=(const PluginDll&) = delete;

    HMODULE module() const { return module_; }
    Ref<IPlugin2> Create() const;

    // Whether nothing of the DLL is in use, as it says itself.
    bool CanUnload() const;

private:
    HMODULE module_;
};

// The framework around one client, whose plug-in is the one in the DLL.
class Framework {
public:
    // The DLL must outlive the framework.
    explicit Framework(const PluginDll& dll);
    ~Framework();  // ends the plug-in first
    Framework(const Framework&) = delete;
    Framework& operator=(const Framework&) = delete;

    sim::Client& client() { return *client_; }
    Services& services() { return services_; }

private:
    void RegisterClasses();

    std::unique_ptr<sim::Client> client_;
    Services services_;
    std::vector<DWORD> registrations_;
};

// COM on this thread, for as long as this lives.
class Apartment {
public:
    Apartment() { CoInitialize(nullptr); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

}  // namespace ombrel::standin
