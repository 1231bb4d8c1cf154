#pragma once

#include "plugin/framework/host/host_object.h"

#include <cstdint>
#include <string>

namespace Meridax::Host {

/// [host implements] What all widgets share; each kind of widget offers this as well as its own
/// interface. It is the argument of message 36.
class IHostPropertyControl : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{CEB5AFB5-7AC3-4115-B60B-B3322B19F5D1}");

    /// The name given at creation. [place 1]
    virtual std::wstring GetName() = 0;

    /// Shows or hides the widget's row. [place 9]
    virtual void SetVisible(bool visible) = 0;

    /// Enables the widget or greys it out. [place 11]
    virtual void SetEnabled(bool enabled) = 0;

    /// Called once, with 1, on the colour edit; its effect is the host's. [place 13]
    virtual void SetFlag(std::int32_t value) = 0;

protected:
    ~IHostPropertyControl() = default;
};

/// [host implements] A check box.
class IHostCheckBox : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{693FC2C1-AB56-4D99-BA5A-508B1956C2EA}");

    /// The current state; anything but 0 of the host's 16 bits is true. [place 1]
    virtual bool GetChecked() = 0;

    /// Sets the state. [place 2]
    virtual void SetChecked(bool checked) = 0;

protected:
    ~IHostCheckBox() = default;
};

/// [host implements] A drop-down list.
class IHostComboBox : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{332DD867-FE98-4284-9184-5C4A04E61BE8}");

    /// The index of the selected item, counted from 0. [place 1]
    virtual std::int32_t GetIndex() = 0;

    /// Selects an item. [place 2]
    virtual void SetIndex(std::int32_t index) = 0;

    /// Appends an item. [place 4]
    virtual void AddItem(const std::wstring& text) = 0;

protected:
    ~IHostComboBox() = default;
};

/// [host implements] A floating-point edit.
class IHostFloatEdit : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{A5EA1E02-F560-4DB9-A85D-A7ED8BE5FAE5}");

    /// The current value. [place 1]
    virtual double GetValue() = 0;

    /// Sets the value. [place 2]
    virtual void SetValue(double value) = 0;

    /// Sets the lower limit. [place 4]
    virtual void SetMin(double value) = 0;

    /// Sets the upper limit. [place 6]
    virtual void SetMax(double value) = 0;

protected:
    ~IHostFloatEdit() = default;
};

/// [host implements] A colour picker.
class IHostColorEdit : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{61B5989D-5B64-42A0-BC43-631C9C6999E7}");

    /// The current colour, in the host's encoding. [place 1]
    virtual std::int32_t GetColor() = 0;

    /// Sets the colour. [place 2]
    virtual void SetColor(std::int32_t color) = 0;

protected:
    ~IHostColorEdit() = default;
};

/// [host implements] An integer edit.
class IHostNumberEdit : public IHostObject {
public:
    static constexpr Guid Identifier = guid("{6F818DF3-5FB4-413B-A4C7-0E734ACD7AC4}");

    /// The current value. [place 1]
    virtual std::int32_t GetValue() = 0;

    /// Sets the value. [place 2]
    virtual void SetValue(std::int32_t value) = 0;

    /// Sets the lower limit. [place 4]
    virtual void SetMin(std::int32_t value) = 0;

    /// Sets the upper limit. [place 6]
    virtual void SetMax(std::int32_t value) = 0;

protected:
    ~IHostNumberEdit() = default;
};

}  // namespace Meridax::Host
