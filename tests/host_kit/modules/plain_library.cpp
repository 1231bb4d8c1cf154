// A library that is no module of a control.

extern "C" [[gnu::visibility("default")]] int plainNumber() {
    return 5;
}
