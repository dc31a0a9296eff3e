#pragma once

#include <cstdlib>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "support/TemporaryFolder.h"

namespace zerna {

/// Replays a file of commands, each followed by what the program answered, and compares answer by answer. Lines that
/// begin with the prompt are commands, lines that begin with "#" comments, all others belong to the answer above them.
/// With ZERNA_AUFZEICHNEN set in the environment the file is written anew with what the program answers now.
inline void playTranscript(const std::filesystem::path& file, const std::string& prompt,
    const std::function<std::string(const std::string& command)>& answerTo)
{
    struct Block {
        int line = 0;
        std::string command;
        std::string answer;
        std::string comments; // below the answer
    };
    std::vector<Block> blocks(1); // the first holds the comments at the head
    std::istringstream stream(bytesOf(file));
    std::string line;
    for (int number = 1; std::getline(stream, line); ++number) {
        if (line.starts_with(prompt))
            blocks.push_back({number, line.substr(prompt.size()), {}, {}});
        else
            (line.starts_with('#') ? blocks.back().comments : blocks.back().answer).append(line).append("\n");
    }
    ASSERT_GT(blocks.size(), 1U) << file;
    const bool recording = std::getenv("ZERNA_AUFZEICHNEN") != nullptr;
    std::string recorded = blocks.front().comments;
    for (std::size_t i = 1; i < blocks.size(); ++i) {
        const Block& block = blocks[i];
        SCOPED_TRACE(file.filename().string() + ':' + std::to_string(block.line) + ": " + prompt + block.command);
        const std::string answer = answerTo(block.command);
        recorded.append(prompt).append(block.command).append("\n").append(answer).append(block.comments);
        if (!recording) {
            EXPECT_EQ(block.answer, answer) << "first what the file says, then what the program says";
        }
    }
    if (recording)
        writeBytes(file, recorded);
}

} // namespace zerna
