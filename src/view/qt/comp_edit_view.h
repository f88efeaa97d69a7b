#ifndef MIVO_VIEW_QT_COMP_EDIT_VIEW_H
#define MIVO_VIEW_QT_COMP_EDIT_VIEW_H

#include <QAbstractScrollArea>
#include <optional>

#include "comp_editor.h"
#include "qt_surface.h"
#include "qt_text_clipboard.h"
#include "text_table.h"

namespace mivo {

/// The window in which a component is drawn and edited. Translates the toolkit's events into calls
/// of the editor, and what the editor tells into scroll bars, cursor and painting; it decides
/// nothing.
class CCompEditView final : public QAbstractScrollArea, private ViewHost {
  Q_OBJECT

 public:
  /// `prompts` must outlive the view.
  explicit CCompEditView(PropertyPrompts& prompts, QWidget* parent = nullptr);

  [[nodiscard]] CompEditor& Editor() noexcept { return editor_; }
  [[nodiscard]] const CompEditor& Editor() const noexcept { return editor_; }

  [[nodiscard]] const SCommonFont& CommonFont() const noexcept { return commonFont_; }
  void SetCommonFont(const SCommonFont& font);

  /// Where pins and drawing objects are put and taken; the frame's whole components go there, too.
  [[nodiscard]] QtTextClipboard& Clipboard() noexcept { return clipboard_; }

  /// What pins are called for assistive programs; English by default.
  void SetTexts(TextTable texts) { texts_ = std::move(texts); }
  [[nodiscard]] const TextTable& Texts() const noexcept { return texts_; }

  /// The component point under the mouse; nothing when the mouse is elsewhere.
  [[nodiscard]] std::optional<SPoint> MousePoint() const;

  /// The frame says whether it shows the pin grid.
  void SetPinGridShown(bool shown) { pinGridShown_ = shown; }

 signals:
  /// A command may have become possible or impossible, or the tool expects something else.
  void CommandsChanged();
  /// An operation is complete, and a commit now would give something else than before it.
  void OperationCompleted();
  /// Pins came, went or changed: pointers to them are void.
  void PinsEdited();
  void PinGridToggled();
  /// The mouse is over another point of the component, or over none, or the zoom changed.
  void PlaceChanged();
  void ContextMenuRequested(QPoint globalPosition);

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void Repaint() override;
  void Render() override;
  void ScrollBarsChanged() override;
  void SetCursor(CursorShape shape) override;
  void SetCapture(bool on) override;
  void ShowContextMenu(PixelPoint at) override;
  void StateChanged() override;
  void Edited() override;
  void PinsChanged() override;
  void TogglePinGrid() override;
  [[nodiscard]] bool IsPinGridShown() const override { return pinGridShown_; }

  [[nodiscard]] PixelPoint DevicePoint(QPointF position) const;
  void TakeSize();

  TextTable texts_;
  SCommonFont commonFont_;
  QtSurfaceFactory surfaces_;
  QtTextClipboard clipboard_;
  CompEditor editor_;
  std::optional<PixelPoint> mouse_;
  double ratio_ = 0;                  ///< device pixels per logical pixel that the editor knows of
  PixelSize size_{};                  ///< of both images
  std::optional<RasterImage> back_;   ///< nothing until it is painted, or when it cannot be had
  std::optional<RasterImage> front_;  ///< likewise; what is on the screen while there is a front
  bool backIsCurrent_ = false;
  bool settingBars_ = false;
  bool pinGridShown_ = false;
};

}  // namespace mivo

#endif
