// The C library gives back nothing of what it keeps for each locale that it finds through LOCPATH;
// the leak sanitizer, where it is there, asks for what it is to pass over.

extern "C" [[gnu::visibility("default")]] const char* __lsan_default_suppressions() {
    return "leak:__argz_add_sep\n";
}
