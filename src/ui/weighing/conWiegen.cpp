#include "ui/weighing/conWiegen.h"

namespace zerna {

conWiegen::conWiegen(QWidget* parent)
    : QWidget(parent)
{
}

void conWiegen::Aktualisieren() { update(); }

} // namespace zerna
