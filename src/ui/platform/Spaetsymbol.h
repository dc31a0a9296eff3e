#pragma once

#include <QIcon>

#include <functional>

namespace zerna {

/// An icon that is read when it is first painted. The first picture that is read costs the toolkit its libraries for
/// all kinds of pictures.
QIcon spaetesSymbol(std::function<QIcon()> lies);

} // namespace zerna
