#ifndef MIVO_VIEW_QT_TEXT_CLIPBOARD_H
#define MIVO_VIEW_QT_TEXT_CLIPBOARD_H

#include <QObject>

#include "text_clipboard.h"

namespace mivo {

/// The clipboard of the window system. Another program may have to be asked for its text, which it
/// may take its time for; so the text is fetched once after every change of the clipboard, and not
/// while the user works in other programs.
class QtTextClipboard final : public QObject, public TextClipboard {
  Q_OBJECT

 public:
  QtTextClipboard();

  [[nodiscard]] bool SetText(std::u16string_view text) override;
  /// Nothing also for a text that does not begin like a record: nobody here can use it, and it may
  /// be too large to be kept.
  [[nodiscard]] std::optional<std::u16string> GetText() override;

 signals:
  /// It holds something else, and now is the time to ask what.
  void Changed();

 private:
  void TellOfChange();

  std::optional<std::u16string> text_;
  bool isKnown_;
  bool tellWhenActive_ = true;  ///< it holds something that was there before the program
};

}  // namespace mivo

#endif
