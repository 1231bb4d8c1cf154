#include "plain_objects.h"

Object channel, properties;

/* IHostChannel: a ring of four points, all held, the next one to be written at 4. */

static HRESULT STDMETHODCALLTYPE giveEight(Object* self, LONG* out) {
    (void)self;
    return giveLong(8, out);
}

static HRESULT STDMETHODCALLTYPE giveFour(Object* self, LONG* out) {
    (void)self;
    return giveLong(4, out);
}

static HRESULT STDMETHODCALLTYPE giveFalse(Object* self, VARIANT_BOOL* out) {
    (void)self;
    *out = VARIANT_FALSE;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getName(Object* self, BSTR* out) {
    (void)self;
    return giveText(L"Shaft", out);
}

static HRESULT STDMETHODCALLTYPE getUnit(Object* self, BSTR* out) {
    (void)self;
    return giveText(L"um", out);
}

static HRESULT STDMETHODCALLTYPE getColor(Object* self, ULONG* out) {
    (void)self;
    *out = 0x0000C0;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getDisplayValue(Object* self, double* out) {
    (void)self;
    *out = 0.0;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getProperties(Object* self, void** out) {
    (void)self;
    return give(&properties, out);
}

static HRESULT STDMETHODCALLTYPE getSample(Object* self, LONG index, LONG component, double* out) {
    static const double X[] = {3, -2, -3, 2};
    static const double Y[] = {1, 4, -1, -4};
    (void)self;
    if (index < 0 || index > 3 || component < 4 || component > 5) return E_INVALIDARG;
    *out = component == 4 ? X[index] : Y[index];
    return S_OK;
}

/* IHostProperties: an unset property is a null text. */
static HRESULT STDMETHODCALLTYPE getProperty(Object* self, BSTR name, BSTR* out) {
    (void)self;
    return lstrcmpW(name, L"Orbit X Angle") == 0 ? giveText(L"90", out) : S_OK;
}

void makeChannel(void) {
    begin(&channel, L"channel", L"{CAE48A7C-581E-4C0B-AE4F-7A2EB89C0DFF}");
    channel.slots[10] = (Slot)giveEight; /* getBufferSize */
    channel.slots[11] = (Slot)giveEight; /* getSampleCount */
    channel.slots[12] = (Slot)giveFour;  /* getWritePosition */
    channel.slots[19] = (Slot)getName;
    channel.slots[31] = (Slot)giveFalse; /* isAsynchronous */
    channel.slots[42] = (Slot)getUnit;
    channel.slots[51] = (Slot)getColor;
    channel.slots[67] = (Slot)getDisplayValue;
    channel.slots[77] = (Slot)giveFour;   /* getSampleCounter */
    channel.slots[83] = (Slot)giveOne;    /* getRateDivider */
    channel.slots[125] = (Slot)giveFalse; /* isArray */
    channel.slots[127] = (Slot)giveOne;   /* getArraySize */
    channel.slots[130] = (Slot)giveNone;  /* getStorageKind */
    channel.slots[188] = (Slot)getProperties;
    channel.slots[198] = (Slot)getSample; /* getValue */
    channel.slots[211] = (Slot)getRate;   /* getSampleRate */
    channel.slots[214] = (Slot)giveNone;  /* getDecimals */

    begin(&properties, L"properties", L"{DBB2D89C-443B-4ABF-838E-27CDEA6E424C}");
    properties.slots[9] = (Slot)getProperty;
}
