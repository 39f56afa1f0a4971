// Library DecalControls (decalcontrols.dll): the controls of views. Each is asked of the IControl that the view gives.
#pragma once

#include "adapters/decal/interfaces/Member.h"

namespace ombrel::decal {

struct IStatic : Interface<IStatic> {
    static constexpr GUID kIid = Guid("93C28CFF-DCF4-4B63-AB00-A89453940CFE");
    static constexpr Get<13, BSTR> Text{};
    static constexpr Put<14, BSTR> SetText{};
};

struct IPushButton : Interface<IPushButton> {
    static constexpr GUID kIid = Guid("AAAB9EEA-06E8-4F0A-A926-3A9AB45939FF");
    static constexpr Get<15, BSTR> Text{};
    static constexpr Put<16, BSTR> SetText{};
};

struct ICheckbox : Interface<ICheckbox> {
    static constexpr GUID kIid = Guid("63D0BB56-1552-4F8C-99CC-52006DD47E9E");
    static constexpr Get<17, VARIANT_BOOL> Checked{};
    static constexpr Put<18, VARIANT_BOOL> SetChecked{};
};

struct ICheckboxEvents {
    static constexpr GUID kIid = Guid("D56CB28A-9BAD-40B1-A011-70F466DC8F05");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Change = 6;
};

struct IEdit : Interface<IEdit> {
    static constexpr GUID kIid = Guid("D7EA9129-E36A-4317-BF24-76DA5967DA75");
    static constexpr Get<11, BSTR> Text{};
    static constexpr Put<12, BSTR> SetText{};
};

struct IEditEvents {
    static constexpr GUID kIid = Guid("4A3E384D-39A5-4BC2-A548-66634C8FACCE");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Change = 6;
    static constexpr DISPID End = 11;
};

// Entries count from 0; -1 is no selection.
struct IChoice : Interface<IChoice> {
    static constexpr GUID kIid = Guid("BD2B37B8-80DE-4F50-ACF8-ED2525B27336");
    static constexpr Method<11, BSTR, VARIANT> AddChoice{};
    static constexpr Get<12, long> ChoiceCount{};
    static constexpr Get<13, VARIANT, long> Data{};
    static constexpr Get<15, BSTR, long> Text{};
    static constexpr Get<20, long> Selected{};
    static constexpr Put<21, long> SetSelected{};
    static constexpr Method<24> Clear{};
};

struct IChoiceEvents {
    static constexpr GUID kIid = Guid("763E36A3-389C-42EB-A5F3-C208D028F9AB");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Change = 6;
};

// Cells go by column, row and sub-cell, all from 0.
struct IListDisp : Interface<IListDisp> {
    static constexpr GUID kIid = Guid("A54D70F6-8CFE-4259-9F16-AF0111541278");
    static constexpr Method<11, long*> AddRow{};
    static constexpr Method<12, long> DeleteRow{};
    static constexpr Get<13, VARIANT, long, long, long> Data{};
    static constexpr Put<14, long, long, long, VARIANT*> SetData{};
    static constexpr Get<16, long> Count{};
    static constexpr Method<17> Clear{};
    static constexpr Get<21, long, long, long> Color{};
    static constexpr Put<22, long, long, long> SetColor{};
    static constexpr Get<25, long> ScrollPosition{};
    static constexpr Put<26, long> SetScrollPosition{};
};

struct IListEvents {
    static constexpr GUID kIid = Guid("88456660-8132-433B-A4CD-E252BDF147C5");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Change = 6;
};

struct IProgress : Interface<IProgress> {
    static constexpr GUID kIid = Guid("2EC89916-3E65-422B-977C-9277BA693E82");
    static constexpr Get<11, long> Value{};
    static constexpr Put<12, long> SetValue{};
};

struct ISlider : Interface<ISlider> {
    static constexpr GUID kIid = Guid("10D12549-8F59-4F06-83FB-D08FB76337F3");
    static constexpr Get<15, long> SliderPosition{};
    static constexpr Put<16, long> SetSliderPosition{};
};

struct ISliderEvents {
    static constexpr GUID kIid = Guid("F881B44D-67FA-4770-B10A-05DA14409E8F");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Change = 6;
};

struct INotebook : Interface<INotebook> {
    static constexpr GUID kIid = Guid("78B62B0F-B3A4-47FF-A9A4-C68CA3FA80B6");
    static constexpr Get<12, long> ActiveTab{};
    static constexpr Put<13, long> SetActiveTab{};
};

struct INotebookEvents {
    static constexpr GUID kIid = Guid("C964E99A-7C1C-46E9-AEA6-09FF5D1BFDD0");
    static constexpr DISPID Destroy = 1;
    static constexpr DISPID Change = 6;
};

}  // namespace ombrel::decal
