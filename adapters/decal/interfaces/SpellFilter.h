// Library SpellFilter (SpellFilter.dll): the game's spell table. A spell that it lacks is S_FALSE and nothing.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct ISpell;

struct ISpells : Interface<ISpells> {
    static constexpr GUID kIid = Guid("BCB57D92-7FCD-477C-B078-C45D205435AC");
    static constexpr Get<7, ISpell*, long> SpellByID{};
    static constexpr Get<8, ISpell*, BSTR> SpellByName{};
};

struct ISpellsEvents {
    static constexpr GUID kIid = Guid("76A6E2FA-30DA-4442-A75F-D3013B044E63");
    static constexpr DISPID Login = 1;
};

struct ISpell : Interface<ISpell> {
    static constexpr GUID kIid = Guid("B445A795-77B4-4069-9129-BB2A97651CFA");
    static constexpr Get<7, long> SpellID{};
    static constexpr Get<9, BSTR> Name{};
    static constexpr Get<11, BSTR> Description{};
    static constexpr Get<13, long> SpellSchool{};
    static constexpr Get<15, long> Icon{};
    static constexpr Get<17, long> Effect{};
    static constexpr Get<19, long> Flags{};
    static constexpr Get<21, long> ManaCost{};
    static constexpr Get<23, long> Difficulty{};
    static constexpr Get<27, long> SpellVersion{};
    static constexpr Get<29, long> SpellType{};
    static constexpr Get<31, double> Duration{};
    static constexpr Get<33, VARIANT_BOOL> Researchable{};
    static constexpr Get<51, long> ComponentCount{};
    static constexpr Get<59, long> TargetMask{};
    static constexpr Get<61, float> RangeBase{};
    static constexpr Get<63, float> RangeModifier{};
    static constexpr Get<65, float> Speed{};
    static constexpr Get<69, long> SortOrder{};
    static constexpr Get<73, long> EffectOnCaster{};
    static constexpr Get<75, long> EffectOnTarget{};
};

}  // namespace ombrel::decal
