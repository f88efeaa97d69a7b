#ifndef MIVO_APP_OUTLINED_STYLE_H
#define MIVO_APP_OUTLINED_STYLE_H

#include <QProxyStyle>

namespace mivo {

/// The toolkit's own style for dark colours. It draws the outlines of check boxes and radio buttons
/// darker than the window, where that is dark so that they cannot be seen; this draws them again,
/// in half the colour of the texts.
class OutlinedStyle final : public QProxyStyle {
 public:
  OutlinedStyle();

  /// Makes this the program's style where it helps: with dark colours in the toolkit's own style.
  static void UseWhereNeeded();

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace mivo

#endif
