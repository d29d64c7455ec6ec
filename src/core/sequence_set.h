#pragma once
// One sequence set (population): a named, ordered list of file sequence numbers.
// Members are file sequence numbers (indices into the file layer), kept as whole numbers in
// 64-bit floats, in order of insertion. A sequence may belong to several sets or to none.

#include <cstdint>
#include <string>
#include <vector>

namespace ovelt {

class PoblacionSecuencias {
 public:
  [[nodiscard]] double max() const { return static_cast<double>(secuencia_.size()); }
  [[nodiscard]] int16_t active() const { return active_; }
  // 1-based; 0 when the index is out of range.
  [[nodiscard]] double secuencia(int32_t index) const;
  [[nodiscard]] const std::string& nombre() const { return nombre_; }

  // With max 0 and index 0 the list is emptied; index max + 1 appends; an index up to max
  // overwrites; a higher index is ignored.
  void secuenciaPop(int32_t index, double value);
  void nombrePop(const std::string& name) { nombre_ = name; }
  void activePop(int16_t flag) { active_ = flag; }
  void copyFrom(const PoblacionSecuencias& other) { *this = other; }

  [[nodiscard]] const std::vector<double>& members() const { return secuencia_; }

 private:
  std::string nombre_;
  int16_t active_ = 1;
  std::vector<double> secuencia_;
};

}  // namespace ovelt
