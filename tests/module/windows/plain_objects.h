/* The objects of a host in plain C: virtual tables as arrays, filled slot by slot. */
#pragma once

#include <windows.h>

#include <oaidl.h>

typedef void (*Slot)(void);

/* The largest table: 7 common slots and 208 places. */
enum { SlotCount = 7 + 208 };

typedef struct Object {
    const Slot* table; /* first: what a caller sees of the object */
    const wchar_t* name;
    GUID identifier;
    LONG references; /* held from outside */
    Slot slots[SlotCount];
} Object;

/* Everything that the host has. */
extern Object app, data, control, channels, groups, group, channel, properties, request;
extern Object canvas, pen, brush, font, document, node;

/* What the host was asked for. */
typedef struct Seen {
    int unnumbered; /* calls of slots that hold nothing */
    int redraws, lines, moves, texts, measures, fontResets;
    int outside; /* coordinates beyond 16 bits */
    wchar_t captions[4096];
    int written; /* settings saved */
    int wronglyWritten;
    int listed; /* channels in the request list */
    int requests;
    LONGLONG from, to;
    LONG requestMode;
    VARIANT_BOOL requestFlag;
} Seen;

extern Seen seen;

/* Fills all tables, one file's objects after the other's. The operation at place p stands in slot
 * 6 + p. */
void makeObjects(void);
void makeData(void);
void makeChannel(void);
void makeCanvas(void);
void makeDocument(void);

/* Begins a table: the common operations, and in every other slot one that is counted. */
void begin(Object* object, const wchar_t* name, const wchar_t* identifier);

/* Results of operations. */
HRESULT give(Object* object, void** out);
HRESULT giveLong(LONG value, LONG* out);
HRESULT giveText(const wchar_t* text, BSTR* out);

/* Operations that several interfaces share. */
HRESULT STDMETHODCALLTYPE giveNone(Object* self, LONG* out);
HRESULT STDMETHODCALLTYPE giveOne(Object* self, LONG* out);
HRESULT STDMETHODCALLTYPE getRate(Object* self, double* out);

/* References to objects of the host that somebody else holds. */
LONG referencesHeld(void);
