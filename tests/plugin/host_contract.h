#pragma once

#include <ostream>
#include <string>
#include <vector>

/// The binary contract with the host, written down by hand: each interface's identifier and each
/// operation's place.
namespace Rotavue::SourceTest {

struct Place {
    int number;
    std::string operation;

    bool operator==(const Place&) const = default;
};

inline void PrintTo(const Place& place, std::ostream* out) {
    *out << place.number << " " << place.operation;
}

struct Interface {
    std::string name;
    std::string identifier;
    std::vector<Place> places;
};

inline void PrintTo(const Interface& one, std::ostream* out) {
    *out << one.name;
}

inline const std::vector<Interface> Contract{
    {"IHostApp",
     "{82D0CAB4-6B17-4810-BA3F-06C235E76366}",
     {{1, "getData"},
      {78, "showMessage"},
      {91, "isAcquiring"},
      {155, "getVersion"},
      {173, "createChannelList"},
      {176, "GetXmlFactory"}}},
    {"IHostData",
     "{45BE650B-1F90-46BF-BC65-853F09A0A241}",
     {{4, "getBlockSize"},
      {11, "getCurrentPosition"},
      {33, "getAcquiredSampleCount"},
      {34, "getFirstPosition"},
      {35, "getLastPosition"},
      {36, "isWholeDataset"},
      {38, "getSampleRate"}}},
    {"IHostVisualControl",
     "{D9D2402A-73A9-47C3-A121-951A7EFE4FCF}",
     {{1, "getChannels"},
      {2, "invalidate"},
      {6, "getGroups"},
      {7, "requestData"},
      {8, "refreshSetup"},
      {9, "editText"},
      {10, "getSlots"}}},
    {"IHostSlotList", "{A4302D26-B5C4-4A54-B1BA-D46CF4BE3769}", {{15, "getSlot"}}},
    {"IHostSlot", "{154B310E-83CD-4D67-BDB6-E5073B56FCFA}", {{22, "getKind"}}},
    {"IHostChannelCollection",
     "{788183A5-1FC0-48E8-93EC-A6EE075A42F9}",
     {{1, "getCount"}, {2, "getItem"}}},
    {"IHostGroupCollection",
     "{185EB8A2-805F-4B63-A1FC-BBEE49A69337}",
     {{1, "getCount"}, {3, "getItem"}}},
    {"IHostChannelList",
     "{9D693130-279E-443A-B4CA-6C2ADA913724}",
     {{1, "add"}, {2, "clear"}, {4, "getCount"}, {5, "getItem"}}},
    {"IHostChannel",
     "{CAE48A7C-581E-4C0B-AE4F-7A2EB89C0DFF}",
     {{4, "getBufferSize"},     {5, "getSampleCount"},  {6, "getWritePosition"},
      {13, "getName"},          {15, "getTimestamp"},   {25, "isAsynchronous"},
      {36, "getUnit"},          {45, "getColor"},       {61, "getDisplayValue"},
      {71, "getSampleCounter"}, {77, "getRateDivider"}, {118, "getAxes"},
      {119, "isArray"},         {121, "getArraySize"},  {124, "getStorageKind"},
      {150, "scaleValue"},      {182, "getProperties"}, {191, "getValueAtTime"},
      {192, "getValue"},        {205, "getSampleRate"}, {208, "getDecimals"}}},
    {"IHostProperties", "{DBB2D89C-443B-4ABF-838E-27CDEA6E424C}", {{3, "getValue"}}},
    {"IHostGroupInfo", "{74E73F54-F623-4271-8071-D3E715B9EF70}", {{6, "getProperties"}}},
    {"IHostAxisList", "{0DB0148A-639A-4ADC-B781-213B14F1F9EF}", {{1, "getAxis"}}},
    {"IHostAxis", "{7A49908D-487A-4F85-96F2-D53B745E91CF}", {{3, "getStart"}, {5, "getStep"}}},
    {"IHostCanvas",
     "{F54B3BB3-A3A5-461A-A524-F416F10825DE}",
     {{1, "LineTo"},
      {2, "MoveTo"},
      {4, "Ellipse"},
      {5, "Rectangle"},
      {6, "TextOut"},
      {7, "GetBrush"},
      {8, "GetPen"},
      {9, "GetFont"},
      {10, "Arc"},
      {14, "TextWidth"},
      {15, "TextHeight"},
      {16, "TextRect"},
      {17, "Polygon"}}},
    {"IHostPen",
     "{DAFC614C-558E-4A51-A5C9-A4BA467429B7}",
     {{2, "SetColor"}, {4, "SetWidth"}, {6, "SetStyle"}}},
    {"IHostBrush", "{C2336C94-EFD4-4EF9-A982-616F2311468F}", {{2, "SetColor"}, {4, "SetStyle"}}},
    {"IHostFont",
     "{48D1B1FC-2C76-4C54-8E3C-AD9FF9C7A919}",
     {{4, "SetColor"},
      {7, "GetHeight"},
      {8, "SetHeight"},
      {10, "SetStyle"},
      {12, "SetOrientation"}}},
    {"IHostPropertyPanel",
     "{48B39869-9B9A-4D13-8763-A595B4155C57}",
     {{1, "GetPage"}, {3, "AddPage"}}},
    {"IHostPropertyPage",
     "{46D31C0C-521F-4E84-BF6D-0551CEE2C923}",
     {{2, "AddGroup"},
      {3, "AddNumberEdit"},
      {4, "FindControl"},
      {6, "AddColorEdit"},
      {7, "AddFloatEdit"},
      {9, "AddComboBox"},
      {10, "AddCheckBox"}}},
    {"IHostPropertyControl",
     "{CEB5AFB5-7AC3-4115-B60B-B3322B19F5D1}",
     {{1, "GetName"}, {9, "SetVisible"}, {11, "SetEnabled"}, {13, "SetFlag"}}},
    {"IHostCheckBox",
     "{693FC2C1-AB56-4D99-BA5A-508B1956C2EA}",
     {{1, "GetChecked"}, {2, "SetChecked"}}},
    {"IHostComboBox",
     "{332DD867-FE98-4284-9184-5C4A04E61BE8}",
     {{1, "GetIndex"}, {2, "SetIndex"}, {4, "AddItem"}}},
    {"IHostFloatEdit",
     "{A5EA1E02-F560-4DB9-A85D-A7ED8BE5FAE5}",
     {{1, "GetValue"}, {2, "SetValue"}, {4, "SetMin"}, {6, "SetMax"}}},
    {"IHostColorEdit",
     "{61B5989D-5B64-42A0-BC43-631C9C6999E7}",
     {{1, "GetColor"}, {2, "SetColor"}}},
    {"IHostNumberEdit",
     "{6F818DF3-5FB4-413B-A4C7-0E734ACD7AC4}",
     {{1, "GetValue"}, {2, "SetValue"}, {4, "SetMin"}, {6, "SetMax"}}},
    {"IHostXmlFactory", "{FF17D484-F89E-4BBE-B98D-16BA390113A3}", {{1, "CreateDocument"}}},
    {"IHostXmlDocument",
     "{83BA9C2D-F71F-476F-AB58-27B80328D73C}",
     {{1, "GetRootNode"},
      {2, "SetRootNode"},
      {3, "CreateNode"},
      {10, "WriteValue"},
      {11, "ReadValue"},
      {13, "GetMode"},
      {14, "SetMode"}}},
    {"IHostXmlNode",
     "{44A1B53F-7D56-41DD-A654-17D9B638B77C}",
     {{1, "SetValue"},
      {2, "AppendChild"},
      {3, "RemoveChild"},
      {4, "ClearChildren"},
      {5, "FindChild"},
      {6, "GetChild"},
      {7, "GetChildCount"},
      {8, "Clone"},
      {9, "GetParent"},
      {10, "AppendAttribute"},
      {11, "RemoveAttribute"},
      {12, "FindAttribute"},
      {13, "GetAttribute"},
      {14, "GetAttributeCount"},
      {15, "ClearAttributes"},
      {16, "GetName"},
      {17, "GetValue"}}},
};

}  // namespace Rotavue::SourceTest
