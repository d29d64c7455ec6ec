#pragma once
// "Select Statistic": which statistic of the table of pairs of populations to export as a
// distance matrix, and in which format.

#include <QDialog>

#include <string>

#include "analyses/divergence/gene_flow/distance_matrix.h"

class QComboBox;

namespace ovelt {

class SelectStatisticDialog : public QDialog {
  Q_OBJECT
 public:
  explicit SelectStatisticDialog(QWidget* parent = nullptr);
  [[nodiscard]] std::string Statistic() const;
  [[nodiscard]] MatrixFormat Format() const;
  [[nodiscard]] QComboBox* StatisticBox() const { return statistic_; }
  [[nodiscard]] QComboBox* FormatBox() const { return format_; }

 private:
  QComboBox* statistic_;
  QComboBox* format_;
};

}  // namespace ovelt
