#include "plain_objects.h"

Seen seen;

static Object* const All[] = {&app,   &data,    &control,    &channels, &groups,
                              &group, &channel, &properties, &request,  &canvas,
                              &pen,   &brush,   &font,       &document, &node};

/* The common operations. */

static HRESULT STDMETHODCALLTYPE queryInterface(Object* self, REFIID wanted, void** found) {
    if (!IsEqualGUID(wanted, &self->identifier) && !IsEqualGUID(wanted, &IID_IUnknown) &&
        !IsEqualGUID(wanted, &IID_IDispatch)) {
        *found = NULL;
        return E_NOINTERFACE;
    }
    ++self->references;
    *found = self;
    return S_OK;
}

static ULONG STDMETHODCALLTYPE addRef(Object* self) {
    return (ULONG)++self->references;
}

static ULONG STDMETHODCALLTYPE release(Object* self) {
    return (ULONG)--self->references;
}

static HRESULT STDMETHODCALLTYPE unnumbered(Object* self) {
    (void)self;
    ++seen.unnumbered;
    return E_NOTIMPL;
}

HRESULT give(Object* object, void** out) {
    ++object->references;
    *out = object;
    return S_OK;
}

HRESULT giveLong(LONG value, LONG* out) {
    *out = value;
    return S_OK;
}

HRESULT giveText(const wchar_t* text, BSTR* out) {
    *out = SysAllocString(text);
    return S_OK;
}

void begin(Object* object, const wchar_t* name, const wchar_t* identifier) {
    for (int slot = 0; slot < SlotCount; ++slot)
        object->slots[slot] = (Slot)unnumbered;
    object->slots[0] = (Slot)queryInterface;
    object->slots[1] = (Slot)addRef;
    object->slots[2] = (Slot)release;
    object->table = object->slots;
    object->name = name;
    IIDFromString(identifier, &object->identifier);
}

void makeObjects(void) {
    makeData();
    makeChannel();
    makeCanvas();
    makeDocument();
}

LONG referencesHeld(void) {
    LONG held = 0;
    for (size_t i = 0; i < sizeof(All) / sizeof(All[0]); ++i)
        held += All[i]->references;
    return held;
}
