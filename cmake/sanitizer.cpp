// A sanitized program's options, whatever environment it is started in: many tests give it one of their own, where
// nobody reads its errors.
#ifdef BRIMSHADE_REPORTS
#define LOG "log_path=" BRIMSHADE_REPORTS "/report"
#else
#define LOG ""
#endif

extern "C" {

const char *__asan_default_options()
{
    return LOG;
}

const char *__ubsan_default_options()
{
    return "print_stacktrace=1:" LOG;
}

const char *__tsan_default_options()
{
    return LOG;
}

const char *__lsan_default_options()
{
    return "print_suppressions=0";
}

// None of these is ours.
const char *__lsan_default_suppressions()
{
    // Qt 6.4 keeps the surface with which a render control looks for OpenGL before it settles for the software
    // renderer.
    return "leak:QRhiGles2InitParams::newFallbackSurface\n";
}

} // extern "C"
