#ifndef MIVO_APP_LB_COMP_NAME_H
#define MIVO_APP_LB_COMP_NAME_H

#include <vector>

#include <QAbstractListModel>
#include <QListView>

#include "name_index.h"

namespace mivo {

/// The names of the open library in list order, which is the order in which they are written. Holds
/// pointers to entries that the library owns.
class NameListModel final : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void SetEntries(std::vector<NameEntry*> entries);
  void Insert(int row, NameEntry* entry);
  void Remove(int row);
  /// Exchanges a row with the one below it.
  void SwapWithNext(int row);
  /// The entry of this row has got another name.
  void NameChanged(int row);
  [[nodiscard]] const std::vector<NameEntry*>& Entries() const noexcept { return entries_; }
  /// Null when the row is out of range.
  [[nodiscard]] NameEntry* Entry(int row) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<NameEntry*> entries_;
};

/// The list of component names. Other names of the selected component stand indented and in red.
class SLBCompName final : public QListView {
  Q_OBJECT

 public:
  explicit SLBCompName(QWidget* parent = nullptr);

  [[nodiscard]] NameListModel& Names() noexcept { return model_; }
  [[nodiscard]] const NameListModel& Names() const noexcept { return model_; }

  /// Null without a selection.
  [[nodiscard]] NameEntry* SelectedEntry() const;
  void SelectRow(int row);

  /// The selected row; -1 without a selection.
  [[nodiscard]] int SelectedRow() const { return currentIndex().row(); }

  /// Keeps rows out of the lowest `pixels`, which another widget covers.
  void SetCoveredBelow(int pixels) { setViewportMargins(0, 0, 0, pixels); }

  /// Selection by letters is no use where names are drawn rather than held.
  void keyboardSearch(const QString& /*search*/) override {}

 signals:
  /// The selected row is another one, or there is none any more.
  void SelectionChanged();
  /// A double click, wherever it fell.
  void PropertyRequested();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  NameListModel model_;
};

}  // namespace mivo

#endif
