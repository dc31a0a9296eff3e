#pragma once

#include "model/eingabe/Eingabe.h"

namespace zerna {

/// What is different for those who compute with an entered alloy once another one takes its place.
Aenderung unterschied(const Eingabe& vorher, const Eingabe& nachher);

} // namespace zerna
