#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QImage>
#include <QPainter>
#include <QTableView>
#include <QTimer>

#include <array>
#include <random>

#include "core/coding_map.h"
#include "core/site_class.h"
#include "support/scripted_platform.h"
#include "support/temp_dir.h"
#include "ui/qt/data_viewer_handlers.h"
#include "ui/qt/data_viewer_options.h"
#include "ui/qt/data_viewer_window.h"
#include "ui/qt/main_window.h"
#include "ui/qt/viewer_cell_delegate.h"

namespace ovelt {
namespace {

using testing::ScriptedPlatform;
using testing::TempDir;

QString Cell(const DataViewerModel& m, int row, int column, int role = Qt::DisplayRole) {
  return m.data(m.index(row, column), role).toString();
}

// 2,000 sequences of 100,000 sites: one ancestor, and sequence q carries one change at site
// 1 + 37 q (distinct sites for q up to 2,000). Those sites are singletons (class 1), all
// others monomorphic; the classes are set by this construction, and checked below on a few
// sites against the classifier.
constexpr int32_t kSeqs = 2000;
constexpr int32_t kSites = 100000;

char Changed(char base) { return base == 'A' ? 'G' : 'A'; }
int32_t ChangedSite(int32_t seq) { return 1 + 37 * seq; }

ActiveData LargeAlignment(std::vector<char>& ancestor) {
  std::mt19937 rng(11);
  const std::array<char, 4> bases{'A', 'C', 'G', 'T'};
  ancestor.resize(kSites);
  for (char& c : ancestor) c = bases[rng() % 4];
  ActiveData ad;
  ad.FileName = "generated.fas";
  ad.NumSites = kSites;
  ad.NumSeqs = kSeqs;
  ad.TotalSeqs = kSeqs;
  ad.RawMatrix.set_sites(kSites);
  ad.RawMatrix.reserve_sequences(kSeqs);
  std::vector<char> row;
  ad.RawNames.assign(1, "");
  for (int32_t q = 1; q <= kSeqs; ++q) {
    row = ancestor;
    const size_t at = static_cast<size_t>(ChangedSite(q) - 1);
    row[at] = Changed(row[at]);
    ad.RawMatrix.append_sequence(row.data());
    ad.RawNames.push_back(FixedName("seq" + std::to_string(q)));
  }
  ad.IncMatrix = ad.RawMatrix;
  ad.IncNames = ad.RawNames;
  ad.SiteClass.assign(kSites + 1, kMonomorphic);
  for (int32_t q = 1; q <= kSeqs; ++q) ad.SiteClass[static_cast<size_t>(ChangedSite(q))] = kSingletonSite;
  ad.CodonPosition.assign(kSites + 1, 0);
  return ad;
}

TEST(ViewerWindow, LargeAlignmentIsShownFromTheMatrix) {
  std::vector<char> ancestor;
  const ActiveData ad = LargeAlignment(ancestor);
  // The construction's classes agree with the classifier where it matters.
  for (int32_t site : {1, 38, 75, 74001, 74002, kSites})
    EXPECT_EQ(ClassifyColumn(ad.IncMatrix, site, kSeqs), ad.SiteClass[static_cast<size_t>(site)])
        << site;

  DataViewerWindow window(ad, ViewerDisplayOptions{});
  window.show();
  const DataViewerModel& m = *window.Model();
  EXPECT_EQ(window.windowTitle(), "Display Data of: generated.fas");
  EXPECT_EQ(m.rowCount(), kSeqs + 1);  // no coding region: no codon row
  EXPECT_EQ(m.columnCount(), kSites);
  EXPECT_EQ(m.CodonRow(), -1);
  EXPECT_EQ(m.headerData(0, Qt::Vertical).toString(), "seq1");
  EXPECT_EQ(m.headerData(kSeqs - 1, Qt::Vertical).toString(), "seq2000");
  EXPECT_EQ(m.headerData(kSeqs, Qt::Vertical).toString(), "Site class");

  const auto lower = [](char c) { return QString(QChar(c)).toLower(); };
  // Site 1 is monomorphic: sequence 1 in capitals, the others dotted.
  EXPECT_EQ(Cell(m, 0, 0), QString(QChar(ancestor[0])));
  EXPECT_EQ(Cell(m, 1999, 0), ".");
  // Site 38 (column 37) is changed in sequence 1: lower case there, and every other sequence
  // differs from sequence 1, so it shows the ancestor's base in lower case.
  EXPECT_EQ(Cell(m, 0, 37), lower(Changed(ancestor[37])));
  EXPECT_EQ(Cell(m, 1, 37), lower(ancestor[37]));
  // Site 75 is changed in sequence 2 only: sequence 3 equals sequence 1 there.
  EXPECT_EQ(Cell(m, 1, 74), lower(Changed(ancestor[74])));
  EXPECT_EQ(Cell(m, 2, 74), ".");
  // The last change: sequence 2000 at site 74001.
  EXPECT_EQ(Cell(m, 1999, 74000), lower(Changed(ancestor[74000])));
  // Class row.
  EXPECT_EQ(Cell(m, kSeqs, 0), "");
  EXPECT_EQ(Cell(m, kSeqs, 0, Qt::ToolTipRole), "Invariable (monomorphic)");
  EXPECT_EQ(Cell(m, kSeqs, 37), "s");
  EXPECT_EQ(Cell(m, kSeqs, 37, Qt::ToolTipRole),
            "Variable (polymorphic), 2 variants NonParsimony Informative Site");

  // Uniform, fixed column widths: the header never measures cells.
  QHeaderView* across = window.View()->horizontalHeader();
  EXPECT_EQ(across->sectionResizeMode(0), QHeaderView::Fixed);
  EXPECT_EQ(across->sectionSize(kSites - 1), across->defaultSectionSize());
}

// A small file worked by hand (sites 1-9 code, site 10 does not):
//   s1 GCT GCT GCT A      codon 1 monomorphic; codon 2 GCT/GCC Ala (synonymous);
//   s2 GCT GCC ACT C      codon 3 GCT/ACT Ala/Thr; site 10 A/C/A singleton;
//   s3 GCT GCT GC- A      site 9 has a gap in s3.
class ViewerOnFile : public ::testing::Test {
 protected:
  ViewerOnFile() {
    p.ProgramDir = dir.Path().string();
    file = dir.Write("small.fas", ">s1\nGCTGCTGCTA\n>s2\nGCTGCCACTC\n>s3\nGCTGCTGC-A\n");
  }
  TempDir dir;
  ScriptedPlatform p;
  std::string file;
};

TEST_F(ViewerOnFile, ClassRowOfTheHandCheckedFile) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  window.Trigger("verf1_Click");
  DataViewerWindow* viewer = OpenDataViewer(window);
  ASSERT_NE(viewer, nullptr);
  EXPECT_EQ(viewer->windowTitle(), "Display Data of: small.fas");
  const DataViewerModel& m = *viewer->Model();
  ASSERT_EQ(m.rowCount(), 4);
  ASSERT_EQ(m.columnCount(), 10);
  // Classes by hand: 0 0 0 0 0 1 1 0 5 1.
  const std::vector<QString> marks = {"", "", "", "", "", "s", "s", "", "-", "s"};
  for (int c = 0; c < 10; ++c) EXPECT_EQ(Cell(m, 3, c), marks[static_cast<size_t>(c)]) << c;
  EXPECT_EQ(Cell(m, 3, 8, Qt::ToolTipRole), "Alignment gaps/missing data");
  // Cells with both display flags on.
  EXPECT_EQ(Cell(m, 0, 5), "t");
  EXPECT_EQ(Cell(m, 1, 5), "c");
  EXPECT_EQ(Cell(m, 2, 5), ".");
  EXPECT_EQ(Cell(m, 2, 8), "-");
  EXPECT_EQ(Cell(m, 1, 0), ".");
  // The default highlight marks the polymorphic sites.
  EXPECT_TRUE(m.data(m.index(0, 5), Qt::BackgroundRole).isValid());
  EXPECT_FALSE(m.data(m.index(0, 0), Qt::BackgroundRole).isValid());
  viewer->HighlightCombo()->setCurrentIndex(static_cast<int>(ViewerHighlight::kGapsMissing));
  EXPECT_TRUE(m.data(m.index(0, 8), Qt::BackgroundRole).isValid());
  EXPECT_FALSE(m.data(m.index(0, 5), Qt::BackgroundRole).isValid());

  // Closing the file drops the viewer.
  p.Answers.push_back(MsgAnswer::kYes);
  window.Trigger("del_Click");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(OpenDataViewer(window), nullptr);
}

TEST_F(ViewerOnFile, CodonRowAfterCodingRegionsAreAssigned) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  ActiveData& ad = window.Bench().Data();
  ASSERT_TRUE(AssignCodingRegion(ad, 1, 9, 1));
  LeaveForm14(ad, true);
  window.Refresh();
  window.Trigger("verf1_Click");
  const DataViewerModel& m = *OpenDataViewer(window)->Model();
  ASSERT_EQ(m.rowCount(), 5);
  EXPECT_EQ(m.CodonRow(), 4);
  EXPECT_EQ(Cell(m, 4, 0), "1");
  EXPECT_EQ(Cell(m, 4, 0, Qt::ToolTipRole), "First position");
  EXPECT_EQ(Cell(m, 4, 4, Qt::ToolTipRole), "Second position");
  EXPECT_EQ(Cell(m, 4, 8, Qt::ToolTipRole), "Third position");
  EXPECT_EQ(Cell(m, 4, 9), "");
  EXPECT_EQ(Cell(m, 4, 9, Qt::ToolTipRole), "non coding");
  // Codon 2 (sites 4-6) is GCT/GCC: synonymous. Codon 3 (sites 7-9) has the gap of s3, so it
  // is a codon with gaps and carries no change marks.
  EXPECT_TRUE(ViewerHighlights(m.Sites(), ViewerHighlight::kSynonymous, 4));
  EXPECT_TRUE(ViewerHighlights(m.Sites(), ViewerHighlight::kSynonymous, 6));
  EXPECT_FALSE(ViewerHighlights(m.Sites(), ViewerHighlight::kNonsynonymous, 7));
  EXPECT_TRUE(ViewerHighlights(m.Sites(), ViewerHighlight::kCodonsWithGaps, 7));
  EXPECT_TRUE(ViewerHighlights(m.Sites(), ViewerHighlight::kCodonsWithGaps, 9));
  EXPECT_FALSE(ViewerHighlights(m.Sites(), ViewerHighlight::kCodons, 10));
}

TEST_F(ViewerOnFile, Form4ChangesTheDisplayOnlyOnOk) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  window.Trigger("verf1_Click");
  const DataViewerModel& m = *OpenDataViewer(window)->Model();
  ASSERT_EQ(Cell(m, 2, 5), ".");

  // Cancel: nothing changes.
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<DataViewerOptionsDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->windowTitle(), "Display Data Options");
    EXPECT_EQ(dialog->LowerCaseBox()->text(), " Show polymorphic sites in LowerCase");
    EXPECT_TRUE(dialog->LowerCaseBox()->isChecked());
    EXPECT_TRUE(dialog->DotBox()->isChecked());
    dialog->DotBox()->setChecked(false);
    dialog->reject();
  });
  window.Trigger("configuracion_Click");
  EXPECT_EQ(Cell(m, 2, 5), ".");

  // OK without the dot: sequence 3 shows its own base, in lower case at the polymorphic site.
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<DataViewerOptionsDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->DotBox()->setChecked(false);
    dialog->accept();
  });
  window.Trigger("configuracion_Click");
  EXPECT_EQ(Cell(m, 2, 5), "t");
  EXPECT_EQ(Cell(m, 2, 0), "G");

  // And without lower case.
  QTimer::singleShot(0, [] {
    auto* dialog = qobject_cast<DataViewerOptionsDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    EXPECT_FALSE(dialog->DotBox()->isChecked());
    dialog->LowerCaseBox()->setChecked(false);
    dialog->accept();
  });
  window.Trigger("configuracion_Click");
  EXPECT_EQ(Cell(m, 2, 5), "T");
}

TEST_F(ViewerOnFile, ViewerFollowsTheIncludedSequences) {
  MainWindow window(p);
  ASSERT_TRUE(window.Bench().OpenPath(file));
  window.Refresh();
  window.Trigger("verf1_Click");
  DataViewerWindow* viewer = OpenDataViewer(window);
  ASSERT_EQ(viewer->Model()->rowCount(), 4);
  // Without sequence 3 site 9 (T, T) holds no gap and is monomorphic; site 10 (A, C) stays a
  // singleton site.
  ASSERT_TRUE(window.Bench().IncludeSequences({false, true, true, false}, 1));
  window.Refresh();
  const DataViewerModel& m = *viewer->Model();
  EXPECT_EQ(m.rowCount(), 3);
  EXPECT_EQ(Cell(m, 2, 8), "");
  EXPECT_EQ(Cell(m, 2, 9), "s");
}

}  // namespace
}  // namespace ovelt

namespace ovelt {
namespace {

// A one-cell model: a letter on a coloured background.
class OneCell : public QAbstractTableModel {
 public:
  int rowCount(const QModelIndex& = QModelIndex()) const override { return 1; }
  int columnCount(const QModelIndex& = QModelIndex()) const override { return 1; }
  QVariant data(const QModelIndex&, int role) const override {
    if (role == Qt::DisplayRole) return QString("A");
    if (role == Qt::BackgroundRole) return QBrush(QColor(255, 255, 0));
    return {};
  }
};

TEST(ViewerCellDelegate, PaintsTheModelsBackgroundAndItsLetter) {
  OneCell model;
  ViewerCellDelegate delegate;
  QImage image(40, 40, QImage::Format_RGB32);
  image.fill(Qt::white);
  QStyleOptionViewItem option;
  option.rect = QRect(0, 0, 40, 40);
  option.font = QFont();
  option.font.setPixelSize(30);
  option.palette.setColor(QPalette::Text, Qt::black);
  {
    QPainter painter(&image);
    delegate.paint(&painter, option, model.index(0, 0));
  }
  // The corner keeps the background; the middle column crosses the letter's strokes.
  EXPECT_EQ(image.pixelColor(1, 1), QColor(255, 255, 0));
  bool dark = false;
  for (int y = 0; y < 40; ++y) dark = dark || image.pixelColor(20, y).lightness() < 100;
  EXPECT_TRUE(dark);

  // A selected cell takes the palette's highlight instead.
  option.state |= QStyle::State_Selected;
  option.palette.setColor(QPalette::Highlight, QColor(0, 0, 200));
  {
    QPainter painter(&image);
    delegate.paint(&painter, option, model.index(0, 0));
  }
  EXPECT_EQ(image.pixelColor(1, 1), QColor(0, 0, 200));
}

}  // namespace
}  // namespace ovelt
