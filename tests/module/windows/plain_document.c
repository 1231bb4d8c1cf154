#include "plain_objects.h"

Object document, node;

/* IHostXmlDocument: what is loaded, and what must be saved after that. */

typedef struct {
    const wchar_t *key, *saved, *savedDefault;
} Setting;

/* A control that was told "historyType" 1 and "displayTime" 4 and no other key. */
static const Setting Settings[] = {{L"useManualMagnitudeLimits", L"False", L"False#"},
                                   {L"drawClearance", L"False", L"False#"},
                                   {L"clearanceColor", L"0", L"0#"},
                                   {L"displayTime", L"4.000000000000000", L"4.000000000000000#"},
                                   {L"revolutions", L"1", L"1"},
                                   {L"tickCount", L"5", L"5"},
                                   {L"singleAxis", L"True", L"True"},
                                   {L"displayType", L"0", L"0"},
                                   {L"graphType", L"0", L"0"},
                                   {L"historyType", L"1", L"0"},
                                   {L"autoScaleType", L"0", L"0"},
                                   {L"showOnlyLastPosition", L"False", L"False"},
                                   {L"minXValue", L"-1.000000000000000", L"-1.000000000000000"},
                                   {L"maxXValue", L"1.000000000000000", L"1.000000000000000"},
                                   {L"minYValue", L"-1.000000000000000", L"-1.000000000000000"},
                                   {L"maxYValue", L"1.000000000000000", L"1.000000000000000"}};

static LONG mode;

static HRESULT STDMETHODCALLTYPE writeValue(Object* self, Object* target, BSTR key, BSTR value,
                                            BSTR defaultValue) {
    const Setting* expected = &Settings[seen.written < 16 ? seen.written : 15];
    (void)self;
    ++seen.written;
    seen.wronglyWritten += target != &node || lstrcmpW(key, expected->key) != 0 ||
                           lstrcmpW(value, expected->saved) != 0 ||
                           lstrcmpW(defaultValue, expected->savedDefault) != 0;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE readValue(Object* self, Object* target, BSTR key, BSTR* value,
                                           BSTR defaultValue) {
    const wchar_t* stored = defaultValue;
    (void)self;
    if (target != &node) return E_INVALIDARG;
    if (lstrcmpW(key, L"historyType") == 0) stored = L"1";
    if (lstrcmpW(key, L"displayTime") == 0) stored = L"4.0";
    SysFreeString(*value);
    return giveText(stored, value);
}

static HRESULT STDMETHODCALLTYPE getMode(Object* self, LONG* out) {
    (void)self;
    return giveLong(mode, out);
}

static HRESULT STDMETHODCALLTYPE setMode(Object* self, VARIANT_BOOL write) {
    (void)self;
    if (write != 0 && write != 1) return E_INVALIDARG;
    mode = write;
    return S_OK;
}

void makeDocument(void) {
    begin(&document, L"document", L"{83BA9C2D-F71F-476F-AB58-27B80328D73C}");
    document.slots[16] = (Slot)writeValue;
    document.slots[17] = (Slot)readValue;
    document.slots[19] = (Slot)getMode;
    document.slots[20] = (Slot)setMode;

    begin(&node, L"node", L"{44A1B53F-7D56-41DD-A654-17D9B638B77C}");
}
