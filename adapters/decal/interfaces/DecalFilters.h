// Library DecalFilters (DecalFilters.dll): the world's objects, the character, the echo of messages.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct IEnchantment;
struct IVendor;
struct IWorldIterator;
struct IWorldObject;

// Item answers S_FALSE and nothing for an object that the world lacks. Each walk is an iterator of its own. Vendor
// gives an object even while none is open.
struct IWorld : Interface<IWorld> {
    static constexpr GUID kIid = Guid("C5F0FF7E-A043-4A28-8893-F6E43F4E9DED");
    static constexpr Get<7, IWorldObject*, long> Item{};
    static constexpr Get<8, IWorldIterator*, BSTR> ByName{};
    static constexpr Get<9, IWorldIterator*> All{};
    static constexpr Get<11, IWorldIterator*, BSTR> ByNameSubstring{};
    static constexpr Get<13, IWorldIterator*> Inventory{};
    static constexpr Get<16, IWorldIterator*> Landscape{};
    static constexpr Get<20, IVendor*> Vendor{};
};

// Objects come as IDispatch.
struct IWorldEvents {
    static constexpr GUID kIid = Guid("175F99F1-B937-47C5-846E-CACBB986AFD9");
    static constexpr DISPID CreateObject = 1;
    static constexpr DISPID ReleaseObject = 2;
    static constexpr DISPID ChangeObject = 3;
    static constexpr DISPID MoveObject = 4;
};

// Next releases the object that it is handed before it puts the next one in its place. At the end it answers S_FALSE
// and leaves the last one to the caller.
struct IWorldIterator : Interface<IWorldIterator> {
    static constexpr GUID kIid = Guid("6FC29250-9FB4-4A0C-AF16-329E35DF02F2");
    static constexpr Method<10, IWorldObject**, VARIANT_BOOL*> Next{};
    static constexpr Method<12, BSTR> ByName{};
    static constexpr Method<13, BSTR> ByNameSubstring{};
};

// The class that the plug-in calls an object's type is ObjectClass.
struct IWorldObject : Interface<IWorldObject> {
    static constexpr ::GUID kIid = Guid("3DDD1391-FDDB-4C43-BA28-8F624E021F05");
    static constexpr Get<7, long> GUID{};
    static constexpr Method<9, double*, double*, VARIANT_BOOL*> Coordinates{};
    static constexpr Get<11, long> ObjectClass{};
    static constexpr Get<14, VARIANT_BOOL> HasIdData{};
    static constexpr Get<15, long> LastIdTime{};
    static constexpr Method<16, long, long, long*> Longs{};
    static constexpr Method<17, long, double, double*> Doubles{};
    static constexpr Method<18, long, VARIANT_BOOL, VARIANT_BOOL*> Bools{};
    static constexpr Method<19, long, BSTR, BSTR*> Strings{};
    static constexpr Method<20, long, long*, VARIANT_BOOL*> LongExists{};
    static constexpr Get<24, BSTR> Name{};
    static constexpr Get<32, long> Container{};
};

// A walk over the goods of the open vendor. BuyRate is what the vendor pays, a share of a thing's value.
struct IVendor : Interface<IVendor> {
    static constexpr GUID kIid = Guid("6AA27887-088A-42F8-B319-2AFBF8C3A5FD");
    static constexpr Method<9, IWorldObject**, VARIANT_BOOL*> Next{};
    static constexpr Method<12, BSTR> ByName{};
    static constexpr Method<13, BSTR> ByNameSubstring{};
    static constexpr Get<20, float> BuyRate{};
};

// The numbers that the plug-in calls skill and vital are the effective ones.
struct ICharacterStats : Interface<ICharacterStats> {
    static constexpr GUID kIid = Guid("0CE57594-4E30-4446-956D-CE460C7355AF");
    static constexpr Get<7, long> Character{};
    static constexpr Get<8, long> Level{};
    static constexpr Get<13, BSTR> Server{};
    static constexpr Get<14, BSTR> Name{};
    static constexpr Get<26, long> Health{};
    static constexpr Get<27, long> Stamina{};
    static constexpr Get<28, long> Mana{};
    static constexpr Get<37, long> Followers{};
    static constexpr Get<38, long> MonarchFollowers{};
    static constexpr Get<39, long> EnchantmentCount{};
    static constexpr Get<40, IEnchantment*, long> Enchantment{};
    static constexpr Get<42, long, long> EffectiveSkill{};
    static constexpr Get<43, long, long> EffectiveVital{};
    static constexpr Get<44, long> Vitae{};
    static constexpr Method<58, long, long*, VARIANT_BOOL*> AugmentationExists{};
};

struct ICharacterStatsEvents {
    static constexpr GUID kIid = Guid("0B60F187-13CD-4E35-B8A2-FE128F05CA6B");
    static constexpr DISPID LoginComplete = 4;
    static constexpr DISPID Death = 7;
    static constexpr DISPID ChangePortalMode = 8;
    static constexpr DISPID ChangeEnchantments = 9;
    static constexpr DISPID ChangeVital = 11;
    static constexpr DISPID Logoff = 14;
};

struct IEnchantment : Interface<IEnchantment> {
    static constexpr GUID kIid = Guid("B83155F4-E298-4004-80C6-AA592F677430");
    static constexpr Get<7, long> SpellID{};
    static constexpr Get<9, long> TimeRemaining{};
    static constexpr Get<12, long> Family{};
};

// No members: it only says what the object is.
struct IEcho2 : Interface<IEcho2> {
    static constexpr GUID kIid = Guid("002C8BAE-917E-4978-B223-B45B3E8B15E6");
};

// Messages come as IDispatch.
struct IEchoSink2 {
    static constexpr GUID kIid = Guid("6C9BCC85-BAD0-4706-9CC5-D491E43F81C4");
    static constexpr DISPID EchoServer = 1;
    static constexpr DISPID EchoClient = 2;
};

}  // namespace ombrel::decal
