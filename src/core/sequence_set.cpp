#include "core/sequence_set.h"

namespace ovelt {

double PoblacionSecuencias::secuencia(int32_t index) const {
  if (index < 1 || index > static_cast<int32_t>(secuencia_.size())) return 0.0;
  return secuencia_[static_cast<size_t>(index - 1)];
}

void PoblacionSecuencias::secuenciaPop(int32_t index, double value) {
  const auto count = static_cast<int32_t>(secuencia_.size());
  if (count == 0 && index == 0) {
    secuencia_.clear();
  } else if (index == count + 1) {
    secuencia_.push_back(value);
  } else if (index >= 1 && index <= count) {
    secuencia_[static_cast<size_t>(index - 1)] = value;
  }
}

}  // namespace ovelt
