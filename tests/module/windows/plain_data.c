#include "plain_objects.h"

Object app, data, control, channels, groups, group, request;

/* IHostApp */

static HRESULT STDMETHODCALLTYPE getData(Object* self, void** out) {
    (void)self;
    return give(&data, out);
}

static HRESULT STDMETHODCALLTYPE isAcquiring(Object* self, VARIANT_BOOL* out) {
    (void)self;
    *out = VARIANT_TRUE;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getVersion(Object* self, void* first, LONG* major, LONG* minor,
                                            LONG* build, void* last) {
    (void)self, (void)first, (void)last;
    *major = 3;
    *minor = 8;
    *build = 19051300;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE createChannelList(Object* self, void** out) {
    (void)self;
    return give(&request, out);
}

/* IHostData: blocks of 100 samples at 1000 Hz, from 0 to 499, the cursor at 250. */

typedef struct {
    LONG block, offset;
} Position;

static HRESULT givePosition(LONG block, LONG offset, Position* out) {
    out->block = block;
    out->offset = offset;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getBlockSize(Object* self, LONG* out) {
    (void)self;
    return giveLong(100, out);
}

static HRESULT STDMETHODCALLTYPE getCurrentPosition(Object* self, Position* out) {
    (void)self;
    return givePosition(2, 50, out);
}

static HRESULT STDMETHODCALLTYPE getAcquiredSampleCount(Object* self, LONG* out) {
    (void)self;
    return giveLong(4, out);
}

static HRESULT STDMETHODCALLTYPE getFirstPosition(Object* self, Position* out) {
    (void)self;
    return givePosition(0, 0, out);
}

static HRESULT STDMETHODCALLTYPE getLastPosition(Object* self, Position* out) {
    (void)self;
    return givePosition(4, 99, out);
}

HRESULT STDMETHODCALLTYPE getRate(Object* self, double* out) {
    (void)self;
    *out = 1000.0;
    return S_OK;
}

/* IHostVisualControl, its collections and the one group. */

static HRESULT STDMETHODCALLTYPE getChannels(Object* self, void** out) {
    (void)self;
    return give(&channels, out);
}

static HRESULT STDMETHODCALLTYPE invalidate(Object* self) {
    (void)self;
    ++seen.redraws;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getGroups(Object* self, void** out) {
    (void)self;
    return give(&groups, out);
}

static HRESULT STDMETHODCALLTYPE requestData(Object* self, LONGLONG from, LONGLONG to, LONG mode,
                                             VARIANT_BOOL flag, Object* list) {
    (void)self;
    if (list != &request || seen.listed != 1) return E_INVALIDARG;
    ++seen.requests;
    seen.from = from;
    seen.to = to;
    seen.requestMode = mode;
    seen.requestFlag = flag;
    return S_OK;
}

HRESULT STDMETHODCALLTYPE giveNone(Object* self, LONG* out) {
    (void)self;
    return giveLong(0, out);
}

HRESULT STDMETHODCALLTYPE giveOne(Object* self, LONG* out) {
    (void)self;
    return giveLong(1, out);
}

static HRESULT STDMETHODCALLTYPE getGroup(Object* self, LONG index, void** out) {
    (void)self, (void)index;
    return give(&group, out);
}

static HRESULT STDMETHODCALLTYPE getGroupChannel(Object* self, LONG index, void** out) {
    (void)self, (void)index;
    return give(&channel, out);
}

static HRESULT STDMETHODCALLTYPE addChannel(Object* self, Object* added) {
    (void)self;
    seen.listed += added == &channel;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE clearList(Object* self) {
    (void)self;
    seen.listed = 0;
    return S_OK;
}

void makeData(void) {
    begin(&app, L"app", L"{82D0CAB4-6B17-4810-BA3F-06C235E76366}");
    app.slots[7] = (Slot)getData;
    app.slots[97] = (Slot)isAcquiring;
    app.slots[161] = (Slot)getVersion;
    app.slots[179] = (Slot)createChannelList;

    begin(&data, L"data", L"{45BE650B-1F90-46BF-BC65-853F09A0A241}");
    data.slots[10] = (Slot)getBlockSize;
    data.slots[17] = (Slot)getCurrentPosition;
    data.slots[39] = (Slot)getAcquiredSampleCount;
    data.slots[40] = (Slot)getFirstPosition;
    data.slots[41] = (Slot)getLastPosition;
    data.slots[44] = (Slot)getRate;

    begin(&control, L"control", L"{D9D2402A-73A9-47C3-A121-951A7EFE4FCF}");
    control.slots[7] = (Slot)getChannels;
    control.slots[8] = (Slot)invalidate;
    control.slots[12] = (Slot)getGroups;
    control.slots[13] = (Slot)requestData;

    begin(&channels, L"channels", L"{788183A5-1FC0-48E8-93EC-A6EE075A42F9}");
    channels.slots[7] = (Slot)giveNone;

    begin(&groups, L"groups", L"{185EB8A2-805F-4B63-A1FC-BBEE49A69337}");
    groups.slots[7] = (Slot)giveOne;
    groups.slots[9] = (Slot)getGroup;

    begin(&group, L"group", L"{9D693130-279E-443A-B4CA-6C2ADA913724}");
    group.slots[10] = (Slot)giveOne;
    group.slots[11] = (Slot)getGroupChannel;

    begin(&request, L"request list", L"{9D693130-279E-443A-B4CA-6C2ADA913724}");
    request.slots[7] = (Slot)addChannel;
    request.slots[8] = (Slot)clearList;
}
