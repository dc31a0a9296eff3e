#pragma once

#include <QWidget>

#include <functional>

namespace zerna {

/// Calls `adapt` now and whenever the widget's font or style changes: what follows from the size of the texts stays
/// right when the user chooses another font while the program runs.
void folgeSchrift(QWidget* widget, std::function<void()> adapt);

} // namespace zerna
