#pragma once

#include <cstdio>
#include <string>

#include <sys/wait.h>

#include "support/FilesTest.h"

namespace zerna {

/// The command line program in a folder of its own.
struct Kommandozeile : FilesTest {
    struct Answer {
        int status = -1;
        std::string text; ///< standard output, errors too
    };

    /// Runs the program with arguments as a shell reads them; what follows them in the line finds it as zerna-cli.
    Answer run(const std::string& arguments) const
    {
        const std::string command = "exec 2>&1; cd '" + folder.path().string() + "'; PATH='" ZERNA_BIN_DIR "':$PATH; ";
        Answer answer;
        FILE* const pipe = popen((command + "zerna-cli " + arguments).c_str(), "r");
        for (int c = std::fgetc(pipe); c != EOF; c = std::fgetc(pipe))
            answer.text.push_back(static_cast<char>(c));
        answer.status = WEXITSTATUS(pclose(pipe));
        return answer;
    }
};

} // namespace zerna
