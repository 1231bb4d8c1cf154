#include "plain_objects.h"

Object app, data, control, channels, groups, group, channel, properties, request;
Object canvas, pen, brush, font, document, node;
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

static HRESULT give(Object* object, void** out) {
    ++object->references;
    *out = object;
    return S_OK;
}

static HRESULT giveLong(LONG value, LONG* out) {
    *out = value;
    return S_OK;
}

static HRESULT giveText(const wchar_t* text, BSTR* out) {
    *out = SysAllocString(text);
    return S_OK;
}

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

static HRESULT STDMETHODCALLTYPE getRate(Object* self, double* out) {
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

static HRESULT STDMETHODCALLTYPE giveNone(Object* self, LONG* out) {
    (void)self;
    return giveLong(0, out);
}

static HRESULT STDMETHODCALLTYPE giveOne(Object* self, LONG* out) {
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

/* IHostCanvas and its tools. */

static void notePoint(LONG x, LONG y) {
    seen.outside += x < -32767 || x > 32767 || y < -32767 || y > 32767;
}

static HRESULT STDMETHODCALLTYPE lineTo(Object* self, LONG x, LONG y) {
    (void)self;
    notePoint(x, y);
    ++seen.lines;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE moveTo(Object* self, LONG x, LONG y) {
    (void)self;
    notePoint(x, y);
    ++seen.moves;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE box(Object* self, LONG x1, LONG y1, LONG x2, LONG y2) {
    (void)self;
    notePoint(x1, y1);
    notePoint(x2, y2);
    return S_OK;
}

static void noteText(BSTR text) {
    ++seen.texts;
    if (lstrlenW(seen.captions) + lstrlenW(text) + 2 >= 4096) return;
    lstrcatW(seen.captions, text);
    lstrcatW(seen.captions, L"|");
}

static HRESULT STDMETHODCALLTYPE textOut(Object* self, LONG x, LONG y, BSTR text) {
    (void)self;
    notePoint(x, y);
    noteText(text);
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE textRect(Object* self, LONG x1, LONG y1, LONG x2, LONG y2,
                                          BSTR text, ULONG format) {
    (void)self, (void)format;
    notePoint(x1, y1);
    notePoint(x2, y2);
    noteText(text);
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getBrush(Object* self, void** out) {
    (void)self;
    return give(&brush, out);
}

static HRESULT STDMETHODCALLTYPE getPen(Object* self, void** out) {
    (void)self;
    return give(&pen, out);
}

static HRESULT STDMETHODCALLTYPE getFont(Object* self, void** out) {
    (void)self;
    return give(&font, out);
}

static HRESULT STDMETHODCALLTYPE arc(Object* self, LONG x1, LONG y1, LONG x2, LONG y2, LONG x3,
                                     LONG y3, LONG x4, LONG y4) {
    (void)self;
    notePoint(x1, y1);
    notePoint(x2, y2);
    notePoint(x3, y3);
    notePoint(x4, y4);
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE textWidth(Object* self, BSTR text, LONG* out) {
    (void)self;
    ++seen.measures;
    return giveLong(6 * lstrlenW(text), out);
}

static HRESULT STDMETHODCALLTYPE textHeight(Object* self, BSTR text, LONG* out) {
    (void)self, (void)text;
    ++seen.measures;
    return giveLong(13, out);
}

static HRESULT STDMETHODCALLTYPE polygon(Object* self, SAFEARRAY* points, LONG count) {
    LONG lower = 1, upper = 0;
    VARTYPE type = VT_EMPTY;
    (void)self;
    SafeArrayGetLBound(points, 1, &lower);
    SafeArrayGetUBound(points, 1, &upper);
    SafeArrayGetVartype(points, &type);
    if (lower != 0 || upper != 2 * count - 1 || type != VT_I4) return E_INVALIDARG;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE setNumber(Object* self, LONG number) {
    (void)self, (void)number;
    return S_OK;
}

static HRESULT STDMETHODCALLTYPE getHeight(Object* self, LONG* out) {
    (void)self;
    return giveLong(-12, out);
}

static HRESULT STDMETHODCALLTYPE setFontStyle(Object* self, LONG style) {
    (void)self;
    seen.fontResets += style == 0;
    return S_OK;
}

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

/* The tables. The operation at place p stands in slot 6 + p. */

static void begin(Object* object, const wchar_t* name, const wchar_t* identifier) {
    for (int slot = 0; slot < SlotCount; ++slot)
        object->slots[slot] = (Slot)unnumbered;
    object->slots[0] = (Slot)queryInterface;
    object->slots[1] = (Slot)addRef;
    object->slots[2] = (Slot)release;
    object->table = object->slots;
    object->name = name;
    IIDFromString(identifier, &object->identifier);
}

static void makeData(void) {
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

static void makeChannel(void) {
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

static void makeCanvas(void) {
    begin(&canvas, L"canvas", L"{F54B3BB3-A3A5-461A-A524-F416F10825DE}");
    canvas.slots[7] = (Slot)lineTo;
    canvas.slots[8] = (Slot)moveTo;
    canvas.slots[10] = (Slot)box; /* Ellipse */
    canvas.slots[11] = (Slot)box; /* Rectangle */
    canvas.slots[12] = (Slot)textOut;
    canvas.slots[13] = (Slot)getBrush;
    canvas.slots[14] = (Slot)getPen;
    canvas.slots[15] = (Slot)getFont;
    canvas.slots[16] = (Slot)arc;
    canvas.slots[20] = (Slot)textWidth;
    canvas.slots[21] = (Slot)textHeight;
    canvas.slots[22] = (Slot)textRect;
    canvas.slots[23] = (Slot)polygon;

    begin(&pen, L"pen", L"{DAFC614C-558E-4A51-A5C9-A4BA467429B7}");
    pen.slots[8] = (Slot)setNumber;  /* SetColor */
    pen.slots[10] = (Slot)setNumber; /* SetWidth */
    pen.slots[12] = (Slot)setNumber; /* SetStyle */

    begin(&brush, L"brush", L"{C2336C94-EFD4-4EF9-A982-616F2311468F}");
    brush.slots[8] = (Slot)setNumber;  /* SetColor */
    brush.slots[10] = (Slot)setNumber; /* SetStyle */

    begin(&font, L"font", L"{48D1B1FC-2C76-4C54-8E3C-AD9FF9C7A919}");
    font.slots[10] = (Slot)setNumber; /* SetColor */
    font.slots[13] = (Slot)getHeight;
    font.slots[14] = (Slot)setNumber; /* SetHeight */
    font.slots[16] = (Slot)setFontStyle;
    font.slots[18] = (Slot)setNumber; /* SetOrientation */
}

static void makeDocument(void) {
    begin(&document, L"document", L"{83BA9C2D-F71F-476F-AB58-27B80328D73C}");
    document.slots[16] = (Slot)writeValue;
    document.slots[17] = (Slot)readValue;
    document.slots[19] = (Slot)getMode;
    document.slots[20] = (Slot)setMode;

    begin(&node, L"node", L"{44A1B53F-7D56-41DD-A654-17D9B638B77C}");
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
