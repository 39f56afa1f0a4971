// The spell table.
#pragma once

#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct ISpell;

struct ISpell : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xB445A795, 0x77B4, 0x4069, {0x91, 0x29, 0xBB, 0x2A, 0x97, 0x65, 0x1C, 0xFA}};

    STDMETHOD(get_SpellID)(long*) { return NotOffered(); }
    STDMETHOD(put_SpellID)(long) { return NotOffered(); }
    STDMETHOD(get_Name)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Name)(BSTR) { return NotOffered(); }
    STDMETHOD(get_Description)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Description)(BSTR) { return NotOffered(); }
    STDMETHOD(get_SpellSchool)(long*) { return NotOffered(); }
    STDMETHOD(put_SpellSchool)(long) { return NotOffered(); }
    STDMETHOD(get_Icon)(long*) { return NotOffered(); }
    STDMETHOD(put_Icon)(long) { return NotOffered(); }
    STDMETHOD(get_Effect)(long*) { return NotOffered(); }
    STDMETHOD(put_Effect)(long) { return NotOffered(); }
    STDMETHOD(get_Flags)(long*) { return NotOffered(); }
    STDMETHOD(put_Flags)(long) { return NotOffered(); }
    STDMETHOD(get_ManaCost)(long*) { return NotOffered(); }
    STDMETHOD(put_ManaCost)(long) { return NotOffered(); }
    STDMETHOD(get_Difficulty)(long*) { return NotOffered(); }
    STDMETHOD(put_Difficulty)(long) { return NotOffered(); }
    STDMETHOD(get_Economy)(float*) { return NotOffered(); }
    STDMETHOD(put_Economy)(float) { return NotOffered(); }
    STDMETHOD(get_SpellVersion)(long*) { return NotOffered(); }
    STDMETHOD(put_SpellVersion)(long) { return NotOffered(); }
    STDMETHOD(get_SpellType)(long*) { return NotOffered(); }
    STDMETHOD(put_SpellType)(long) { return NotOffered(); }
    STDMETHOD(get_Duration)(double*) { return NotOffered(); }
    STDMETHOD(put_Duration)(double) { return NotOffered(); }
    STDMETHOD(get_Researchable)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_Researchable)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_Component)(long /*comp_num*/, long*) { return NotOffered(); }
    STDMETHOD(put_Component)(long /*comp_num*/, long) { return NotOffered(); }
    STDMETHOD(get_Misc)(long /*misc_num*/, long*) { return NotOffered(); }
    STDMETHOD(put_Misc)(long /*misc_num*/, long) { return NotOffered(); }
    STDMETHOD(get_FUnknown1)(float*) { return NotOffered(); }
    STDMETHOD(put_FUnknown1)(float) { return NotOffered(); }
    STDMETHOD(get_FUnknown2)(float*) { return NotOffered(); }
    STDMETHOD(put_FUnknown2)(float) { return NotOffered(); }
    STDMETHOD(get_FUnknown3)(float*) { return NotOffered(); }
    STDMETHOD(put_FUnknown3)(float) { return NotOffered(); }
    STDMETHOD(get_LUnknown1)(long*) { return NotOffered(); }
    STDMETHOD(put_LUnknown1)(long) { return NotOffered(); }
    STDMETHOD(get_LUnknown2)(long*) { return NotOffered(); }
    STDMETHOD(put_LUnknown2)(long) { return NotOffered(); }
    STDMETHOD(get_LUnknown3)(long*) { return NotOffered(); }
    STDMETHOD(put_LUnknown3)(long) { return NotOffered(); }
    STDMETHOD(get_ComponentCount)(long*) { return NotOffered(); }
    STDMETHOD(put_ComponentCount)(long) { return NotOffered(); }
    STDMETHOD(get_LUnknown4)(long*) { return NotOffered(); }
    STDMETHOD(put_LUnknown4)(long) { return NotOffered(); }
    STDMETHOD(get_LUnknown5)(long*) { return NotOffered(); }
    STDMETHOD(put_LUnknown5)(long) { return NotOffered(); }
    STDMETHOD(get_LUnknown6)(long*) { return NotOffered(); }
    STDMETHOD(put_LUnknown6)(long) { return NotOffered(); }
    STDMETHOD(get_TargetMask)(long*) { return NotOffered(); }
    STDMETHOD(put_TargetMask)(long) { return NotOffered(); }
    STDMETHOD(get_RangeBase)(float*) { return NotOffered(); }
    STDMETHOD(put_RangeBase)(float) { return NotOffered(); }
    STDMETHOD(get_RangeModifier)(float*) { return NotOffered(); }
    STDMETHOD(put_RangeModifier)(float) { return NotOffered(); }
    STDMETHOD(get_Speed)(float*) { return NotOffered(); }
    STDMETHOD(put_Speed)(float) { return NotOffered(); }
    STDMETHOD(get_ID2)(long*) { return NotOffered(); }
    STDMETHOD(put_ID2)(long) { return NotOffered(); }
    STDMETHOD(get_SortOrder)(long*) { return NotOffered(); }
    STDMETHOD(put_SortOrder)(long) { return NotOffered(); }
    STDMETHOD(get_Misc2)(long /*misc_num*/, long*) { return NotOffered(); }
    STDMETHOD(put_Misc2)(long /*misc_num*/, long) { return NotOffered(); }
    STDMETHOD(get_EffectOnCaster)(long*) { return NotOffered(); }
    STDMETHOD(put_EffectOnCaster)(long) { return NotOffered(); }
    STDMETHOD(get_EffectOnTarget)(long*) { return NotOffered(); }
    STDMETHOD(put_EffectOnTarget)(long) { return NotOffered(); }
    STDMETHOD(get_DurationUnk)(double*) { return NotOffered(); }
    STDMETHOD(put_DurationUnk)(double) { return NotOffered(); }
};

struct ISpells : Dispatch {
    using Base = IDispatch;
    static constexpr GUID kId = {0xBCB57D92, 0x7FCD, 0x477C, {0xB0, 0x78, 0xC4, 0x5D, 0x20, 0x54, 0x35, 0xAC}};

    STDMETHOD(get_SpellByID)(long /*spell_id*/, ISpell**) { return NotOffered(); }
    STDMETHOD(get_SpellByName)(BSTR /*spell_name*/, ISpell**) { return NotOffered(); }
    STDMETHOD(get_SpellKnown)(long /*spell_id*/, VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(get_LastSpellID)(long*) { return NotOffered(); }
    STDMETHOD(get_Server)(BSTR*) { return NotOffered(); }
    STDMETHOD(get_ComponentByID)(long /*comp_id*/, IUnknown**) { return NotOffered(); }
    STDMETHOD(get_ComponentByName)(BSTR /*comp_name*/, IUnknown**) { return NotOffered(); }
};

namespace ISpellsEvents {
inline constexpr GUID kId = {0x76A6E2FA, 0x30DA, 0x4442, {0xA7, 0x5F, 0xD3, 0x01, 0x3B, 0x04, 0x4E, 0x63}};
inline constexpr DISPID kLogin = 1;
inline constexpr DISPID kSpellbookAdd = 2;
inline constexpr DISPID kSpellbookDelete = 3;
}  // namespace ISpellsEvents

}  // namespace ombrel::standin
