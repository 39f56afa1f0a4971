// What the framework knows of the world and of the character.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IEnchantment;
struct ISkillInfo;
struct IVendor;
struct IWorldIterator;
struct IWorldObject;

struct IWorldObject : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x3DDD1391, 0xFDDB, 0x4C43, {0xBA, 0x28, 0x8F, 0x62, 0x4E, 0x02, 0x1F, 0x05}};

    STDMETHOD(get_GUID)(long*) { return NotOffered(); }
    STDMETHOD(Offset)(double* /*x*/, double* /*y*/, double* /*z*/, VARIANT_BOOL* /*success*/) { return NotOffered(); }
    STDMETHOD(Coordinates)(double* /*north_south*/, double* /*east_west*/, VARIANT_BOOL* /*success*/) {
        return NotOffered();
    }
    STDMETHOD(RawCoordinates)(double* /*x*/, double* /*y*/, double* /*z*/, VARIANT_BOOL* /*success*/) {
        return NotOffered();
    }
    STDMETHOD(get_ObjectClass)(long*) { return NotOffered(); }
    STDMETHOD(Spell)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(Orientation)(double* /*w*/, double* /*x*/, double* /*y*/, double* /*z*/, VARIANT_BOOL* /*success*/) {
        return NotOffered();
    }
    STDMETHOD(get_HasIdData)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(get_LastIdTime)(long*) { return NotOffered(); }
    STDMETHOD(Longs)(long /*index*/, long /*def_val*/, long*) { return NotOffered(); }
    STDMETHOD(Doubles)(long /*index*/, double /*def_val*/, double*) { return NotOffered(); }
    STDMETHOD(Bools)(long /*index*/, VARIANT_BOOL /*def_val*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(Strings)(long /*index*/, BSTR /*def_val*/, BSTR*) { return NotOffered(); }
    STDMETHOD(LongExists)(long /*index*/, long* /*value*/, VARIANT_BOOL* /*exists*/) { return NotOffered(); }
    STDMETHOD(DoubleExists)(long /*index*/, double* /*value*/, VARIANT_BOOL* /*exists*/) { return NotOffered(); }
    STDMETHOD(BoolExists)(long /*index*/, VARIANT_BOOL* /*value*/, VARIANT_BOOL* /*exists*/) { return NotOffered(); }
    STDMETHOD(StringExists)(long /*index*/, BSTR* /*value*/, VARIANT_BOOL* /*exists*/) { return NotOffered(); }
    STDMETHOD(get_Name)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_PhysicsDataFlags)(long*) { return NotOffered(); }
    STDMETHOD(get_GameDataFlags1)(long*) { return NotOffered(); }
    STDMETHOD(get_Type)(long*) { return NotOffered(); }
    STDMETHOD(get_Icon)(long*) { return NotOffered(); }
    STDMETHOD(get_Category)(long*) { return NotOffered(); }
    STDMETHOD(get_Behavior)(long*) { return NotOffered(); }
    STDMETHOD(ActiveSpell)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(get_Container)(long*) { return NotOffered(); }
    STDMETHOD(EnumBoolKey)(int /*index*/, long* /*key*/) { return NotOffered(); }
    STDMETHOD(EnumLongKey)(int /*index*/, long* /*key*/) { return NotOffered(); }
    STDMETHOD(EnumDoubleKey)(int /*index*/, long* /*key*/) { return NotOffered(); }
    STDMETHOD(EnumStringKey)(int /*index*/, long* /*key*/) { return NotOffered(); }
};

struct IWorldIterator : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x6FC29250, 0x9FB4, 0x4A0C, {0xAF, 0x16, 0x32, 0x9E, 0x35, 0xDF, 0x02, 0xF2}};

    STDMETHOD(get_Next_Old)(IWorldObject**) { return NotOffered(); }
    STDMETHOD(Reset)() { return NotOffered(); }
    STDMETHOD(get_Count)(long*) { return NotOffered(); }
    STDMETHOD(Next)(IWorldObject** /*object*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(Pop)() { return NotOffered(); }
    STDMETHOD(ByName)(BSTR /*name*/) { return NotOffered(); }
    STDMETHOD(ByNameSubstring)(BSTR /*substring*/) { return NotOffered(); }
    STDMETHOD(ByObjectClass)(long /*class_*/) { return NotOffered(); }
    STDMETHOD(ByAll)() { return NotOffered(); }
    STDMETHOD(ByInventory)() { return NotOffered(); }
    STDMETHOD(ByContainer)(long /*container*/) { return NotOffered(); }
    STDMETHOD(get_Quantity)(long*) { return NotOffered(); }
    STDMETHOD(ByOwner)(long /*owner*/) { return NotOffered(); }
    STDMETHOD(ByLandscape)() { return NotOffered(); }
    STDMETHOD(ByCategory)(long /*category*/) { return NotOffered(); }
    STDMETHOD(get__NewEnum)(IUnknown** /*unk*/) { return NotOffered(); }
};

struct IVendor : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x6AA27887, 0x088A, 0x42F8, {0xB3, 0x19, 0x2A, 0xFB, 0xF8, 0xC3, 0xA5, 0xFD}};

    STDMETHOD(Reset)() { return NotOffered(); }
    STDMETHOD(get_Count)(long*) { return NotOffered(); }
    STDMETHOD(Next)(IWorldObject** /*object*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(Pop)() { return NotOffered(); }
    STDMETHOD(ByAll)() { return NotOffered(); }
    STDMETHOD(ByName)(BSTR /*name*/) { return NotOffered(); }
    STDMETHOD(ByNameSubstring)(BSTR /*substring*/) { return NotOffered(); }
    STDMETHOD(ByObjectClass)(long /*class_*/) { return NotOffered(); }
    STDMETHOD(ByCategory)(long /*category*/) { return NotOffered(); }
    STDMETHOD(get_Quantity)(long*) { return NotOffered(); }
    STDMETHOD(get_MerchantID)(long*) { return NotOffered(); }
    STDMETHOD(get_BuyCategories)(long*) { return NotOffered(); }
    STDMETHOD(get_BuyValue)(long*) { return NotOffered(); }
    STDMETHOD(get_BuyRate)(float*) { return NotOffered(); }
    STDMETHOD(get_SellRate)(float*) { return NotOffered(); }
    STDMETHOD(get__NewEnum)(IUnknown** /*unk*/) { return NotOffered(); }
    STDMETHOD(GetByID)(long /*object_id*/, IWorldObject** /*object*/) { return NotOffered(); }
};

struct IWorld : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xC5F0FF7E, 0xA043, 0x4A28, {0x88, 0x93, 0xF6, 0xE4, 0x3F, 0x4E, 0x9D, 0xED}};

    STDMETHOD(get_Item)(long /*guid*/, IWorldObject**) { return NotOffered(); }
    STDMETHOD(get_ByName)(BSTR /*name*/, IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_All)(IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_ByObjectClass)(long /*class_*/, IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_ByNameSubstring)(BSTR /*substring*/, IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_ByContainer)(long /*guid*/, IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_Inventory)(IWorldIterator**) { return NotOffered(); }
    STDMETHOD(Distance2D)(long /*guid1*/, long /*guid2*/, double*) { return NotOffered(); }
    STDMETHOD(get_ByOwner)(long /*guid*/, IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_Landscape)(IWorldIterator**) { return NotOffered(); }
    STDMETHOD(get_NumObjectClasses)(long*) { return NotOffered(); }
    STDMETHOD(get_ByCategory)(long /*category*/, IWorldIterator**) { return NotOffered(); }
    STDMETHOD(Distance3D)(long /*guid1*/, long /*guid2*/, double*) { return NotOffered(); }
    STDMETHOD(get_Vendor)(IVendor**) { return NotOffered(); }
};

struct IEnchantment : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xB83155F4, 0xE298, 0x4004, {0x80, 0xC6, 0xAA, 0x59, 0x2F, 0x67, 0x74, 0x30}};

    STDMETHOD(get_SpellID)(long*) { return NotOffered(); }
    STDMETHOD(get_Layer)(long*) { return NotOffered(); }
    STDMETHOD(get_TimeRemaining)(long*) { return NotOffered(); }
    STDMETHOD(get_Affected)(long*) { return NotOffered(); }
    STDMETHOD(get_AffectedMask)(long*) { return NotOffered(); }
    STDMETHOD(get_Family)(long*) { return NotOffered(); }
    STDMETHOD(get_Adjustment)(double*) { return NotOffered(); }
    STDMETHOD(get_Duration)(double*) { return NotOffered(); }
};

struct ISkillInfo : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x6FBA5326, 0xF234, 0x4AEC, {0xB8, 0x44, 0x21, 0x36, 0xA0, 0xD5, 0x0F, 0xD5}};

    STDMETHOD(get_Name)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_ShortName)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_Formula)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_Base)(long*) { return NotOffered(); }
    STDMETHOD(get_Current)(long*) { return NotOffered(); }
    STDMETHOD(get_Exp)(long*) { return NotOffered(); }
    STDMETHOD(get_Training)(long*) { return NotOffered(); }
    STDMETHOD(get_Known)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(get_Increment)(long*) { return NotOffered(); }
    STDMETHOD(get_Bonus)(long*) { return NotOffered(); }
    STDMETHOD(get_Buffed)(long*) { return NotOffered(); }
};

struct ICharacterStats : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x0CE57594, 0x4E30, 0x4446, {0x95, 0x6D, 0xCE, 0x46, 0x0C, 0x73, 0x55, 0xAF}};

    STDMETHOD(get_Character)(long*) { return NotOffered(); }
    STDMETHOD(get_Level)(long*) { return NotOffered(); }
    STDMETHOD(get_Rank)(long*) { return NotOffered(); }
    STDMETHOD(get_TotalExp)(long*) { return NotOffered(); }
    STDMETHOD(get_UnassignedExp)(long*) { return NotOffered(); }
    STDMETHOD(get_SkillPoints)(long*) { return NotOffered(); }
    STDMETHOD(get_Server)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_Name)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_Race)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_Gender)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_ClassTemplate)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_AttributeCount)(long*) { return NotOffered(); }
    STDMETHOD(get_SkillCount)(long*) { return NotOffered(); }
    STDMETHOD(get_VitalCount)(long*) { return NotOffered(); }
    STDMETHOD(get_Attribute)(long /*index*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(get_Skill)(long /*index*/, ISkillInfo**) { return NotOffered(); }
    STDMETHOD(get_Vital)(long /*index*/, ISkillInfo**) { return NotOffered(); }
    STDMETHOD(get_SpellLearned)(long /*spell_id*/, long*) { return NotOffered(); }
    STDMETHOD(get_TotalSpells)(long*) { return NotOffered(); }
    STDMETHOD(get_Health)(long*) { return NotOffered(); }
    STDMETHOD(get_Stamina)(long*) { return NotOffered(); }
    STDMETHOD(get_Mana)(long*) { return NotOffered(); }
    STDMETHOD(get_Birth)(long*) { return NotOffered(); }
    STDMETHOD(get_Age)(long*) { return NotOffered(); }
    STDMETHOD(get_Deaths)(long*) { return NotOffered(); }
    STDMETHOD(get_VassalCount)(long*) { return NotOffered(); }
    STDMETHOD(get_Monarch)(IUnknown**) { return NotOffered(); }
    STDMETHOD(get_Patron)(IUnknown**) { return NotOffered(); }
    STDMETHOD(get_MyAllegiance)(IUnknown**) { return NotOffered(); }
    STDMETHOD(get_Vassal)(long /*vassal_num*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(get_Followers)(long*) { return NotOffered(); }
    STDMETHOD(get_MonarchFollowers)(long*) { return NotOffered(); }
    STDMETHOD(get_EnchantmentCount)(long*) { return NotOffered(); }
    STDMETHOD(get_Enchantment)(long /*enchant_num*/, IEnchantment**) { return NotOffered(); }
    STDMETHOD(get_EffectiveAttribute)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(get_EffectiveSkill)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(get_EffectiveVital)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(get_Vitae)(long*) { return NotOffered(); }
    STDMETHOD(get_BurdenUnits)(long*) { return NotOffered(); }
    STDMETHOD(get_Burden)(long*) { return NotOffered(); }
    STDMETHOD(get_TotalXP_64)(LONGLONG*) { return NotOffered(); }
    STDMETHOD(get_UnassignedXP_64)(LONGLONG*) { return NotOffered(); }
    STDMETHOD(get_LoginStatus)(long*) { return NotOffered(); }
    STDMETHOD(get_ServerPopulation)(long*) { return NotOffered(); }
    STDMETHOD(get_AccountName)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_AccountCharCount)(long*) { return NotOffered(); }
    STDMETHOD(get_AccountCharID)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(get_AccountCharName)(long /*index*/, BSTR*) { return NotOffered(); }
    STDMETHOD(get_Quickslots)(long /*slot*/, long*) { return NotOffered(); }
    STDMETHOD(get_CharacterOptions)(long*) { return NotOffered(); }
    STDMETHOD(get_XPToNextLevel)(unsigned long*) { return NotOffered(); }
    STDMETHOD(AugmentationExists)(long /*key*/, long* /*value*/, VARIANT_BOOL* /*exists*/) { return NotOffered(); }
    STDMETHOD(SpellBarCount)(long /*bar_number*/, long*) { return NotOffered(); }
    STDMETHOD(SpellBar)(long /*bar_number*/, long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(AugmentationCount)(long*) { return NotOffered(); }
    STDMETHOD(Augmentation)(long /*index*/, long*) { return NotOffered(); }
    STDMETHOD(get_SpellbookArray)(SAFEARRAY**) { return NotOffered(); }
    STDMETHOD(get_AugmentationArray)(SAFEARRAY**) { return NotOffered(); }
    STDMETHOD(SpellBarArray)(long /*bar_number*/, SAFEARRAY**) { return NotOffered(); }
    STDMETHOD(get_CharacterOptionFlags)(long*) { return NotOffered(); }
};

struct IEcho2 : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0x002C8BAE, 0x917E, 0x4978, {0xB2, 0x23, 0xB4, 0x5B, 0x3E, 0x8B, 0x15, 0xE6}};
};

namespace IWorldEvents {
inline constexpr GUID kId = {0x175F99F1, 0xB937, 0x47C5, {0x84, 0x6E, 0xCA, 0xCB, 0xB9, 0x86, 0xAF, 0xD9}};
inline constexpr DISPID kCreateObject = 1;
inline constexpr DISPID kReleaseObject = 2;
inline constexpr DISPID kChangeObject = 3;
inline constexpr DISPID kMoveObject = 4;
inline constexpr DISPID kReleaseDone = 5;
inline constexpr DISPID kEnterTrade = 6;
inline constexpr DISPID kEndTrade = 7;
inline constexpr DISPID kAddTradeItem = 8;
inline constexpr DISPID kAcceptTrade = 9;
inline constexpr DISPID kDeclineTrade = 10;
inline constexpr DISPID kResetTrade = 11;
inline constexpr DISPID kFailToAddTradeItem = 12;
inline constexpr DISPID kFailToCompleteTrade = 13;
inline constexpr DISPID kApproachVendor = 14;
}  // namespace IWorldEvents

namespace ICharacterStatsEvents {
inline constexpr GUID kId = {0x0B60F187, 0x13CD, 0x4E35, {0xB8, 0xA2, 0xFE, 0x12, 0x8F, 0x05, 0xCA, 0x6B}};
inline constexpr DISPID kLogin = 1;
inline constexpr DISPID kSpellbookAdd = 2;
inline constexpr DISPID kSpellbookDelete = 3;
inline constexpr DISPID kLoginComplete = 4;
inline constexpr DISPID kActionComplete = 5;
inline constexpr DISPID kStatusMessage = 6;
inline constexpr DISPID kDeath = 7;
inline constexpr DISPID kChangePortalMode = 8;
inline constexpr DISPID kChangeEnchantments = 9;
inline constexpr DISPID kChangePlayer = 10;
inline constexpr DISPID kChangeVital = 11;
inline constexpr DISPID kChangeXPS = 12;
inline constexpr DISPID kChangeFellowship = 13;
inline constexpr DISPID kLogoff = 14;
inline constexpr DISPID kCastSpell = 15;
inline constexpr DISPID kChangeShortcut = 16;
inline constexpr DISPID kChangeSpellbar = 17;
inline constexpr DISPID kChangeSettings = 18;
inline constexpr DISPID kChangeSettingFlags = 19;
inline constexpr DISPID kChangeOption = 20;
}  // namespace ICharacterStatsEvents

namespace IEchoSink2 {
inline constexpr GUID kId = {0x6C9BCC85, 0xBAD0, 0x4706, {0x9C, 0xC5, 0xD4, 0x91, 0xE4, 0x3F, 0x81, 0xC4}};
inline constexpr DISPID kEchoServer = 1;
inline constexpr DISPID kEchoClient = 2;
}  // namespace IEchoSink2

}  // namespace ombrel::standin
