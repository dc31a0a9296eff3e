#include "support/Stoerung.h"

#include <gmock/gmock.h>

#include "core/clsFileHandler.h"
#include "support/FilesTest.h"

namespace zerna {

using StoerungTest = FilesTest;

TEST_F(StoerungTest, ALineThatFoundNoRoomIsToldWhenItsFileIsClosed)
{
    clsFileHandler handler(files, boxes);
    ASSERT_TRUE(handler.OpenFile((folder / "voll.dat").string(), 0));
    const Stoerung stoerung(folder.path(), Stoerung::Art::Voll, 1);
    handler.WriteLine("x");
    EXPECT_TRUE(boxes.shown.empty());
    handler.CloseFile();
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].caption, "FileHandler");
    EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Datenträger voll"));
}

} // namespace zerna
