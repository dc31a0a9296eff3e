#include "support/Transkript.h"

#include "support/Kommandozeile.h"

namespace zerna {

using TranskriptTest = Kommandozeile;

TEST_F(TranskriptTest, EveryCommandAnswersAsRecorded)
{
    setenv("BEISPIEL", ZERNA_TESTS_DIR "/cli/Al-Cu.zerna", 1);
    playTranscript(ZERNA_TESTS_DIR "/cli/befehle.txt", "$ ", [this](const std::string& arguments) {
        Answer answer = run(arguments);
        if (!answer.text.empty() && !answer.text.ends_with('\n'))
            answer.text += "[no line end]\n";
        if (answer.status != 0)
            answer.text += "[" + std::to_string(answer.status) + "]\n";
        return answer.text;
    });
}

} // namespace zerna
