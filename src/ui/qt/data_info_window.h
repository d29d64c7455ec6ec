#pragma once
// "Data Information": the rows of the open file, and a button that copies them to the output.

#include <QDialog>

#include <functional>

#include "shell/data_information.h"

class QTableWidget;

namespace ovelt {

class DataInfoWindow : public QDialog {
  Q_OBJECT
 public:
  DataInfoWindow(const std::vector<InfoRow>& rows, std::function<void()> to_output,
                 QWidget* parent = nullptr);
  [[nodiscard]] QTableWidget* Table() const { return table_; }

 private:
  QTableWidget* table_;
};

}  // namespace ovelt
