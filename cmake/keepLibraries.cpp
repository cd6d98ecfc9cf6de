// Linked into sanitized programs: a library that is never unloaded keeps its name in leak reports,
// so that the few blocks that the software OpenGL driver keeps for the process can be told from
// ours.
extern "C" __attribute__((visibility("default"))) int dlclose(void* /*handle*/) {
    return 0;
}
