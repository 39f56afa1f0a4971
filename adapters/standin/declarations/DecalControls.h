// The controls of views.
#pragma once

#include "adapters/standin/declarations/DecalPlugins.h"
#include "adapters/standin/declarations/Slots.h"

namespace ombrel::standin {

struct IFontCache;

struct IStatic : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0x93C28CFF, 0xDCF4, 0x4B63, {0xAB, 0x00, 0xA8, 0x94, 0x53, 0x94, 0x0C, 0xFE}};

    STDMETHOD(get_Font)(IFontCache**) { return NotOffered(); }
    STDMETHOD(putref_Font)(IFontCache*) { return NotOffered(); }
    STDMETHOD(get_Text)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Text)(BSTR) { return NotOffered(); }
    STDMETHOD(get_TextColor)(long*) { return NotOffered(); }
    STDMETHOD(put_TextColor)(long) { return NotOffered(); }
};

struct IPushButton : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0xAAAB9EEA, 0x06E8, 0x4F0A, {0xA9, 0x26, 0x3A, 0x9A, 0xB4, 0x59, 0x39, 0xFF}};

    STDMETHOD(get_Image)(IUnknown**) { return NotOffered(); }
    STDMETHOD(putref_Image)(IUnknown*) { return NotOffered(); }
    STDMETHOD(get_Font)(IFontCache**) { return NotOffered(); }
    STDMETHOD(putref_Font)(IFontCache*) { return NotOffered(); }
    STDMETHOD(get_Text)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Text)(BSTR) { return NotOffered(); }
    STDMETHOD(get_FaceColor)(long*) { return NotOffered(); }
    STDMETHOD(put_FaceColor)(long) { return NotOffered(); }
    STDMETHOD(get_TextColor)(long*) { return NotOffered(); }
    STDMETHOD(put_TextColor)(long) { return NotOffered(); }
};

struct ICheckbox : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0x63D0BB56, 0x1552, 0x4F8C, {0x99, 0xCC, 0x52, 0x00, 0x6D, 0xD4, 0x7E, 0x9E}};

    STDMETHOD(get_Font)(IFontCache**) { return NotOffered(); }
    STDMETHOD(putref_Font)(IFontCache*) { return NotOffered(); }
    STDMETHOD(get_Text)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Text)(BSTR) { return NotOffered(); }
    STDMETHOD(get_TextColor)(long*) { return NotOffered(); }
    STDMETHOD(put_TextColor)(long) { return NotOffered(); }
    STDMETHOD(get_Checked)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_Checked)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_RightToLeft)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_RightToLeft)(VARIANT_BOOL) { return NotOffered(); }
};

struct IEdit : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0xD7EA9129, 0xE36A, 0x4317, {0xBF, 0x24, 0x76, 0xDA, 0x59, 0x67, 0xDA, 0x75}};

    STDMETHOD(get_Text)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_Text)(BSTR) { return NotOffered(); }
    STDMETHOD(get_Caret)(long*) { return NotOffered(); }
    STDMETHOD(put_Caret)(long) { return NotOffered(); }
    STDMETHOD(Select)(long /*start*/, long /*end*/) { return NotOffered(); }
    STDMETHOD(get_SelectedText)(BSTR*) { return NotOffered(); }
    STDMETHOD(put_SelectedText)(BSTR) { return NotOffered(); }
    STDMETHOD(get_Background)(IUnknown**) { return NotOffered(); }
    STDMETHOD(putref_Background)(IUnknown*) { return NotOffered(); }
    STDMETHOD(get_Font)(IFontCache**) { return NotOffered(); }
    STDMETHOD(putref_Font)(IFontCache*) { return NotOffered(); }
    STDMETHOD(get_TextColor)(long*) { return NotOffered(); }
    STDMETHOD(put_TextColor)(long) { return NotOffered(); }
    STDMETHOD(SetMargins)(long /*x*/, long /*y*/) { return NotOffered(); }
    STDMETHOD(Capture)() { return NotOffered(); }
};

struct IChoice : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0xBD2B37B8, 0x80DE, 0x4F50, {0xAC, 0xF8, 0xED, 0x25, 0x25, 0xB2, 0x73, 0x36}};

    STDMETHOD(AddChoice)(BSTR /*display*/, VARIANT /*data*/) { return NotOffered(); }
    STDMETHOD(get_ChoiceCount)(long*) { return NotOffered(); }
    STDMETHOD(get_Data)(long /*index*/, VARIANT*) { return NotOffered(); }
    STDMETHOD(put_Data)(long /*index*/, VARIANT) { return NotOffered(); }
    STDMETHOD(get_Text)(long /*index*/, BSTR*) { return NotOffered(); }
    STDMETHOD(put_Text)(long /*index*/, BSTR) { return NotOffered(); }
    STDMETHOD(RemoveChoice)(long /*index*/) { return NotOffered(); }
    STDMETHOD(get_Dropped)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_Dropped)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_Selected)(long*) { return NotOffered(); }
    STDMETHOD(put_Selected)(long) { return NotOffered(); }
    STDMETHOD(get_DropLines)(long*) { return NotOffered(); }
    STDMETHOD(put_DropLines)(long) { return NotOffered(); }
    STDMETHOD(Clear)() { return NotOffered(); }
};

struct IListDisp : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0xA54D70F6, 0x8CFE, 0x4259, {0x9F, 0x16, 0xAF, 0x01, 0x11, 0x54, 0x12, 0x78}};

    STDMETHOD(AddRow)(long* /*new_index*/) { return NotOffered(); }
    STDMETHOD(DeleteRow)(long /*index*/) { return NotOffered(); }
    STDMETHOD(get_Data)(long /*x*/, long /*y*/, long /*sub_value*/, VARIANT*) { return NotOffered(); }
    STDMETHOD(put_Data)(long /*x*/, long /*y*/, long /*sub_value*/, VARIANT*) { return NotOffered(); }
    STDMETHOD(put_RowEstimate)(long) { return NotOffered(); }
    STDMETHOD(get_Count)(long*) { return NotOffered(); }
    STDMETHOD(Clear)() { return NotOffered(); }
    STDMETHOD(InsertRow)(long /*index*/) { return NotOffered(); }
    STDMETHOD(get_ColumnWidth)(long /*column*/, long* /*width*/) { return NotOffered(); }
    STDMETHOD(put_ColumnWidth)(long /*column*/, long /*width*/) { return NotOffered(); }
    STDMETHOD(get_Color)(long /*x*/, long /*y*/, long*) { return NotOffered(); }
    STDMETHOD(put_Color)(long /*x*/, long /*y*/, long) { return NotOffered(); }
    STDMETHOD(get_AutoScroll)(VARIANT_BOOL*) { return NotOffered(); }
    STDMETHOD(put_AutoScroll)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(get_ScrollPosition)(long*) { return NotOffered(); }
    STDMETHOD(put_ScrollPosition)(long) { return NotOffered(); }
    STDMETHOD(JumpToPosition)(long /*new_val*/) { return NotOffered(); }
    STDMETHOD(get_CountCols)(long*) { return NotOffered(); }
};

struct IList : IListDisp {
    using Base = IListDisp;
    static constexpr GUID kId = {0xD648F00A, 0xFE27, 0x4E88, {0x89, 0x5B, 0x72, 0xF5, 0x8A, 0xF5, 0x0C, 0x0C}};

    STDMETHOD(AddColumn)(IUnknown* /*new_column*/, long* /*index*/) { return NotOffered(); }
    STDMETHOD(get_CellRect)(POINT* /*pt*/, RECT*) { return NotOffered(); }
};

struct IProgress : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0x2EC89916, 0x3E65, 0x422B, {0x97, 0x7C, 0x92, 0x77, 0xBA, 0x69, 0x3E, 0x82}};

    STDMETHOD(get_Value)(long*) { return NotOffered(); }
    STDMETHOD(put_Value)(long) { return NotOffered(); }
    STDMETHOD(put_FaceColor)(long) { return NotOffered(); }
    STDMETHOD(put_FillColor)(long) { return NotOffered(); }
    STDMETHOD(put_TextColor)(long) { return NotOffered(); }
    STDMETHOD(put_MaxValue)(long) { return NotOffered(); }
    STDMETHOD(put_PostText)(BSTR) { return NotOffered(); }
    STDMETHOD(put_Alignment)(BSTR) { return NotOffered(); }
    STDMETHOD(put_DecalDrawText)(VARIANT_BOOL) { return NotOffered(); }
    STDMETHOD(put_PreText)(BSTR) { return NotOffered(); }
    STDMETHOD(put_BorderWidth)(long) { return NotOffered(); }
    STDMETHOD(put_BorderColor)(long) { return NotOffered(); }
};

struct ISlider : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0x10D12549, 0x8F59, 0x4F06, {0x83, 0xFB, 0xD0, 0x8F, 0xB7, 0x63, 0x37, 0xF3}};

    STDMETHOD(get_Font)(IFontCache**) { return NotOffered(); }
    STDMETHOD(putref_Font)(IFontCache*) { return NotOffered(); }
    STDMETHOD(get_TextColor)(long*) { return NotOffered(); }
    STDMETHOD(put_TextColor)(long) { return NotOffered(); }
    STDMETHOD(get_SliderPosition)(long*) { return NotOffered(); }
    STDMETHOD(put_SliderPosition)(long) { return NotOffered(); }
    STDMETHOD(get_Minimum)(long*) { return NotOffered(); }
    STDMETHOD(put_Minimum)(long) { return NotOffered(); }
    STDMETHOD(get_Maximum)(long*) { return NotOffered(); }
    STDMETHOD(put_Maximum)(long) { return NotOffered(); }
};

struct INotebook : IControl {
    using Base = IControl;
    static constexpr GUID kId = {0x78B62B0F, 0xB3A4, 0x47FF, {0xA9, 0xA4, 0xC6, 0x8C, 0xA3, 0xFA, 0x80, 0xB6}};

    STDMETHOD(AddPage)(BSTR /*text*/, IControl* /*client*/) { return NotOffered(); }
    STDMETHOD(get_ActiveTab)(long*) { return NotOffered(); }
    STDMETHOD(put_ActiveTab)(long) { return NotOffered(); }
    STDMETHOD(get_PageText)(long /*index*/, BSTR*) { return NotOffered(); }
    STDMETHOD(put_PageText)(long /*index*/, BSTR) { return NotOffered(); }
};

namespace ICheckboxEvents {
inline constexpr GUID kId = {0xD56CB28A, 0x9BAD, 0x40B1, {0xA0, 0x11, 0x70, 0xF4, 0x66, 0xDC, 0x8F, 0x05}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kChange = 6;
}  // namespace ICheckboxEvents

namespace IEditEvents {
inline constexpr GUID kId = {0x4A3E384D, 0x39A5, 0x4BC2, {0xA5, 0x48, 0x66, 0x63, 0x4C, 0x8F, 0xAC, 0xCE}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kBegin = 10;
inline constexpr DISPID kChange = 6;
inline constexpr DISPID kEnd = 11;
}  // namespace IEditEvents

namespace IChoiceEvents {
inline constexpr GUID kId = {0x763E36A3, 0x389C, 0x42EB, {0xA5, 0xF3, 0xC2, 0x08, 0xD0, 0x28, 0xF9, 0xAB}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kChange = 6;
inline constexpr DISPID kDropDown = 12;
}  // namespace IChoiceEvents

namespace IListEvents {
inline constexpr GUID kId = {0x88456660, 0x8132, 0x433B, {0xA4, 0xCD, 0xE2, 0x52, 0xBD, 0xF1, 0x47, 0xC5}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kChange = 6;
}  // namespace IListEvents

namespace ISliderEvents {
inline constexpr GUID kId = {0xF881B44D, 0x67FA, 0x4770, {0xB1, 0x0A, 0x05, 0xDA, 0x14, 0x40, 0x9E, 0x8F}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kChange = 6;
}  // namespace ISliderEvents

namespace INotebookEvents {
inline constexpr GUID kId = {0xC964E99A, 0x7C1C, 0x46E9, {0xAE, 0xA6, 0x09, 0xFF, 0x5D, 0x1B, 0xFD, 0xD0}};
inline constexpr DISPID kDestroy = 1;
inline constexpr DISPID kChange = 6;
}  // namespace INotebookEvents

}  // namespace ombrel::standin
