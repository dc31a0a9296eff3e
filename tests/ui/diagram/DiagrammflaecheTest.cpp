#include "ui/diagram/Diagrammflaeche.h"

#include "support/FakeDesk.h"
#include "ui/diagram/conDisplay.h"

namespace zerna {

/// The window with the valence of aluminium and copper over aluminium: from 1 to 3.
struct DiagrammflaecheTest : FakeDesk {
    DiagrammflaecheTest() { openAluminiumCopper(); }

    Diagrammflaeche& flaeche() const { return find<Diagrammflaeche>("picDiagramm"); }
    conDisplay& display() const { return flaeche().display(); }

    /// The picture of the series with titles, notes and a second curve, which leaves it.
    Kurvenbild vollesBild() const
    {
        Kurvenbild bild = display().diagramm().bild();
        bild.titel = "Valenz [e/a] über Al";
        bild.untertitel = "Al 50 at%, Cu 50 at%";
        bild.x.titel = "Al [at%]";
        bild.hinweise = {"Ein Hinweis."};
        bild.kurven[0].name = "eingetragen";
        bild.kurven.push_back({"gemischt", {{0, 1}, {50, 2.5}, {100, 3}}, {200, 0, 0}, Linienart::Gestrichelt});
        return bild;
    }
};

TEST_F(DiagrammflaecheTest, TheDisplayKeepsItsGivenInsideBetweenTheStrips)
{
    const QWidget& pic = find("pic");
    const auto inside = [&] { return QRect(60, 0, display().width() - 60, display().height() - 30) == pic.geometry(); };
    display().setBild(vollesBild());
    EXPECT_TRUE(inside());
    EXPECT_GT(display().y(), 20);
    EXPECT_LT(display().geometry().bottom() + 40, flaeche().height());
    window->resize(1700, 1000);
    EXPECT_TRUE(inside());
    display().Zeichne_Diagramm_2D(8, 0);
    flaeche().showKonzentration();
    EXPECT_EQ(display().geometry(), flaeche().rect()) << "the next series stands alone until it gets its picture";
    EXPECT_TRUE(inside());
}

} // namespace zerna
