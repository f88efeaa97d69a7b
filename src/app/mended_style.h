#ifndef MIVO_APP_MENDED_STYLE_H
#define MIVO_APP_MENDED_STYLE_H

#include <QProxyStyle>

namespace mivo {

/// The toolkit's own style with two things mended.
class MendedStyle final : public QProxyStyle {
 public:
  MendedStyle();

  /// Makes this the program's style where the toolkit's own one is in use.
  static void UseWhereNeeded();

  /// The outlines of check boxes and radio buttons are darker than the window, where that is dark
  /// so that they cannot be seen. There they are drawn again, in half the colour of the texts.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

  /// Every menu bar and toolbar asks for the arrow that it shows when it is too narrow. To read
  /// this first picture the toolkit loads all its libraries for pictures, which takes a twentieth
  /// of the program's start; so it is read when it is shown.
  [[nodiscard]] QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                                   const QWidget* widget) const override;
};

}  // namespace mivo

#endif
