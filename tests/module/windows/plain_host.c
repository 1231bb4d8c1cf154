/*
 * A host in plain C that knows the plug-in by its contract alone: identifiers, slot numbers and
 * layouts are written down here by hand. It loads the module, drives one control through its life
 * and checks what it sees of it.
 *
 *     plain_host MODULE     prints a line for each check; ends with 0 when all of them hold
 *     plain_host            prints the text on the clipboard and nothing else
 */
#include "plain_objects.h"

#include <stdio.h>

/* The one operation that hosts call: slot 3. */
typedef struct Plugin {
    const struct PluginTable {
        HRESULT(STDMETHODCALLTYPE* QueryInterface)(struct Plugin*, REFIID, void**);
        ULONG(STDMETHODCALLTYPE* AddRef)(struct Plugin*);
        ULONG(STDMETHODCALLTYPE* Release)(struct Plugin*);
        HRESULT(STDMETHODCALLTYPE* message)(struct Plugin*, ULONG, VARIANT, VARIANT*);
    } * table;
} Plugin;

static int checks, failures;

static void check(int holds, const char* what) {
    ++checks;
    failures += !holds;
    printf("%s - %s\n", holds ? "ok" : "NOT OK", what);
}

/* Sends a message with `count` arguments; the list is destroyed after it. */
static HRESULT tell(Plugin* plugin, ULONG code, const VARIANT* arguments, LONG count,
                    VARIANT* result) {
    VARIANT list;
    VariantInit(&list);
    if (count > 0) {
        list.vt = VT_ARRAY | VT_VARIANT;
        list.parray = SafeArrayCreateVector(VT_VARIANT, 0, (ULONG)count);
        for (LONG i = 0; i < count; ++i)
            SafeArrayPutElement(list.parray, &i, (void*)&arguments[i]);
    }
    const HRESULT status = plugin->table->message(plugin, code, list, result);
    VariantClear(&list);
    return status;
}

static VARIANT objectArgument(Object* object) {
    VARIANT argument = {0};
    argument.vt = VT_UNKNOWN;
    argument.punkVal = (IUnknown*)object;
    return argument;
}

static VARIANT integerArgument(LONG number) {
    VARIANT argument = {0};
    argument.vt = VT_I4;
    argument.lVal = number;
    return argument;
}

static VARIANT wordArgument(USHORT word) {
    VARIANT argument = {0};
    argument.vt = VT_UI2;
    argument.uiVal = word;
    return argument;
}

static void attachTo(Plugin* plugin) {
    const VARIANT objects[] = {objectArgument(&app), objectArgument(&control)};
    VARIANT result;
    VariantInit(&result);
    check(tell(plugin, 0, NULL, 0, &result) == 0 && result.vt == VT_I2 && result.iVal == 1,
          "message 0 answers the 16-bit integer 1 before it is attached");
    VariantInit(&result);
    check(tell(plugin, 7, NULL, 0, &result) == 1 && result.vt == VT_EMPTY,
          "message 7 answers status 1 and writes no result");
    check(tell(plugin, 2, objects, 2, &result) == 0, "message 2 attaches to version 3.8.19051300");
    check(app.references > 0 && control.references > 0, "the two host objects are kept");
}

static void useSetup(Plugin* plugin) {
    VARIANT arguments[] = {objectArgument(&document), objectArgument(&node), wordArgument(0)};
    VARIANT result;
    VariantInit(&result);
    check(tell(plugin, 33, arguments, 3, &result) == 0, "message 33 loads a setup");
    arguments[2] = wordArgument(0xFFFF);
    check(tell(plugin, 33, arguments, 3, &result) == 0 && seen.written == 16,
          "message 33 saves sixteen settings");
    check(seen.wronglyWritten == 0, "each in its order, with its text and its default");
    check(document.references == 0 && node.references == 0, "document and node are given back");
}

/* Twice the 4 ms shown, about the cursor: 0.008 s * 1000 Hz / 2 = 4 samples on either side of 250,
 * so from block 2, offset 46, to block 2, offset 54. */
static void askForData(Plugin* plugin) {
    VARIANT result;
    LONG lower = -1, upper = -1, sum = 0;
    VariantInit(&result);
    check(tell(plugin, 6, NULL, 0, &result) == 0 && result.vt == (VT_ARRAY | VT_I4),
          "message 6 answers an array of 32-bit integers");
    SafeArrayGetLBound(result.parray, 1, &lower);
    SafeArrayGetUBound(result.parray, 1, &upper);
    for (LONG i = 0; i < 4; ++i)
        sum |= ((LONG*)result.parray->pvData)[i];
    check(lower == 0 && upper == 3 && sum == 0, "of four elements from 0 on, all of them 0");
    VariantClear(&result);
    check(seen.requests == 1 && seen.from == (2 | 46LL << 32) && seen.to == (2 | 54LL << 32),
          "the window is asked for with the block in the low and the offset in the high half");
    check(seen.requestMode == 0 && seen.requestFlag == -1 && seen.listed == 0,
          "with 0 and true, and the list of channels is emptied after it");
}

static void drawWith(Plugin* plugin) {
    const VARIANT arguments[] = {objectArgument(&canvas), integerArgument(0),   integerArgument(0),
                                 integerArgument(400),    integerArgument(300), integerArgument(0),
                                 integerArgument(0),      integerArgument(1)};
    VARIANT result;
    VariantInit(&result);
    check(tell(plugin, 42, arguments, 8, &result) == 0 && result.vt == VT_EMPTY,
          "message 42 draws");
    check(seen.lines > 0 && seen.moves > 0 && seen.texts > 0 && seen.measures > 0,
          "with lines, moves, texts and measured texts");
    check(seen.outside == 0, "within 16 bits");
    check(wcsstr(seen.captions, L"Shaft") != NULL, "the legend names the channel");
    check(seen.fontResets == 1, "the font's style is set back once, at the end");
    check(canvas.references + pen.references + brush.references + font.references == 0,
          "the canvas and its tools are given back");
}

static void movePointer(Plugin* plugin) {
    const VARIANT arguments[] = {wordArgument(0), integerArgument(200), integerArgument(150)};
    check(tell(plugin, 12, arguments, 3, NULL) == 0 && seen.redraws == 1,
          "a move of the pointer asks for a redraw, also without a place for a result");
}

/* What this program prints when it is run without an argument: the clipboard as another process
 * sees it. */
static int printClipboard(void) {
    int result = 1;
    if (!OpenClipboard(NULL)) return result;
    const HANDLE block = GetClipboardData(CF_UNICODETEXT);
    const wchar_t* const text = block == NULL ? NULL : GlobalLock(block);
    if (text != NULL) {
        for (const wchar_t* at = text; *at != L'\0'; ++at)
            printf("%04x", (unsigned)*at);
        GlobalUnlock(block);
        result = 0;
    }
    CloseClipboard();
    return result;
}

/* The clipboard's text in hexadecimal digits, four for a character. */
static void readClipboard(char* digits, size_t size) {
    char path[MAX_PATH + 2] = "\"";
    digits[0] = '\0';
    GetModuleFileNameA(NULL, path + 1, MAX_PATH - 1);
    lstrcatA(path, "\"");
    FILE* const output = _popen(path, "r");
    if (output == NULL) return;
    if (fgets(digits, (int)size, output) == NULL) digits[0] = '\0';
    _pclose(output);
}

/* The newest sample first. x is the first probe, at 90 degrees: its sine is 1; y is the second, at
 * 0 degrees: its cosine is 1. */
static const wchar_t Copied[] =
    L"Shaft (um)\r\n"
    L"X\tY\r\n"
    L"2.000\t-4.000\r\n"
    L"-3.000\t-1.000\r\n"
    L"-2.000\t4.000\r\n"
    L"3.000\t1.000\r\n"
    L"\r\n";

static void copy(Plugin* plugin) {
    VARIANT result;
    static char digits[4096], expected[4096];
    VariantInit(&result);
    check(tell(plugin, 30, NULL, 0, &result) == 0 && result.vt == VT_BOOL && result.boolVal == 1,
          "message 30 answers a boolean that is the number 1");
    VariantInit(&result);
    check(tell(plugin, 31, NULL, 0, &result) == 0 && result.vt == VT_EMPTY, "message 31 copies");
    for (size_t i = 0; Copied[i] != L'\0'; ++i)
        sprintf(expected + 4 * i, "%04x", (unsigned)Copied[i]);
    readClipboard(digits, sizeof digits);
    check(strcmp(digits, expected) == 0, "another process finds the text on the clipboard");
}

static Plugin* makePlugin(HMODULE module) {
    typedef HRESULT(STDAPICALLTYPE * Install)(BOOL, LPCWSTR);
    CLSID class;
    IID messages;
    IUnknown* object = NULL;
    Plugin* plugin = NULL;
    const Install install = (Install)(void (*)(void))GetProcAddress(module, "DllInstall");
    check(install != NULL && install(TRUE, NULL) == 0, "the module registers for the machine");
    CLSIDFromString(L"{264200AB-CDA2-4257-932E-FD19E014BD0C}", &class);
    IIDFromString(L"{5C45F430-EE53-49DC-935B-36314A52D438}", &messages);
    check(CoCreateInstance(&class, NULL, CLSCTX_INPROC_SERVER, &IID_IUnknown, (void**)&object) == 0,
          "the class is found through the registry and makes an object");
    if (object == NULL) return NULL;
    object->lpVtbl->QueryInterface(object, &messages, (void**)&plugin);
    object->lpVtbl->Release(object);
    check(plugin != NULL, "the object offers the message interface");
    return plugin;
}

static void drive(HMODULE module) {
    typedef HRESULT(STDAPICALLTYPE * CanUnload)(void);
    const CanUnload canUnload =
        (CanUnload)(void (*)(void))GetProcAddress(module, "DllCanUnloadNow");
    Plugin* const plugin = makePlugin(module);
    if (plugin == NULL) return;
    attachTo(plugin);
    useSetup(plugin);
    drawWith(plugin);
    movePointer(plugin);
    askForData(plugin);
    copy(plugin);
    check(canUnload() == 1, "the module must stay while the object lives");
    check(plugin->table->Release(plugin) == 0, "the last release ends the object");
    check(canUnload() == 0, "the module may go after that");
    check(referencesHeld() == 0, "every reference to the host is given back");
    check(seen.unnumbered == 0, "no call lands in a slot that the contract leaves empty");
}

int main(int count, char** arguments) {
    if (count < 2) return printClipboard();
    const HMODULE module = LoadLibraryA(arguments[1]);
    check(module != NULL, "the module loads");
    CoInitializeEx(NULL, COINIT_APARTMENTTHREADED);
    makeObjects();
    if (module != NULL) drive(module);
    CoUninitialize();
    printf("%d checks, %d failed\n", checks, failures);
    return failures == 0 ? 0 : 1;
}
