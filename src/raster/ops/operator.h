// Which type does an operation of the slot table. Each operation says so where it is defined.
#pragma once

#include "raster/slots.h"

namespace zorvic {
namespace {

template <Op op>
struct Operator;

// The operation on the samples of a row source; one may need another formula.
template <Op op, Rows rows>
struct OperatorOn : Operator<op> {};

}  // namespace
}  // namespace zorvic
