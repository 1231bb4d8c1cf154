#include "plain_objects.h"

Object canvas, pen, brush, font;

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

void makeCanvas(void) {
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
