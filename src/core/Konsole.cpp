#include "core/Konsole.h"

#ifdef _WIN32
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <shellapi.h>

#include "core/Datei.h"
#endif

namespace zerna {

namespace {

#ifdef _WIN32

UINT codePageBefore()
{
    static const UINT before = GetConsoleOutputCP();
    return before;
}

void restoreCodePage() { SetConsoleOutputCP(codePageBefore()); }

BOOL WINAPI restoreBeforeBreak(DWORD)
{
    restoreCodePage();
    return FALSE; // and now what ends the process
}

void useUtf8AndOwnBytes()
{
    codePageBefore();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit(&restoreCodePage); // a picture program that runs instead ends this one with exit()
    SetConsoleCtrlHandler(&restoreBeforeBreak, TRUE);
    for (std::FILE* const stream : {stdin, stdout, stderr})
        _setmode(_fileno(stream), _O_BINARY);
}

/// main() gets them in the system's code page, which lacks most letters.
std::vector<std::string> arguments(int, char**)
{
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i)
        texts.push_back(utf8FromPath(wide[i]));
    LocalFree(static_cast<HLOCAL>(wide));
    return texts;
}

#else

void useUtf8AndOwnBytes() { }

std::vector<std::string> arguments(int argc, char** argv) { return {argv, argv + argc}; }

#endif

} // namespace

Konsole::Konsole(int argc, char** argv)
    : m_texts(arguments(argc, argv))
{
    useUtf8AndOwnBytes();
    for (std::string& text : m_texts)
        m_pointers.push_back(text.data());
    m_pointers.push_back(nullptr);
}

} // namespace zerna
