#ifndef MIVO_PATTERN_PTN_OBJ_TEXT_H
#define MIVO_PATTERN_PTN_OBJ_TEXT_H

#include <string>
#include <string_view>

#include "ptn_obj.h"

namespace mivo {

/// One line of text at an anchor point, horizontal, or vertical and reading upward. Without a font
/// name it is drawn in the program's common label font. It has no use for style, width and fill.
class SPtnObjText final : public SPtnObj {
 public:
  // Alignment: where along the text, and where across it, the anchor is.
  static constexpr std::int32_t kAlongMask = 3;
  static constexpr std::int32_t kLeft = 0;   ///< the text starts at the anchor
  static constexpr std::int32_t kRight = 1;  ///< the text ends at the anchor
  static constexpr std::int32_t kCenter = 2;
  static constexpr std::int32_t kAcrossMask = 12;
  static constexpr std::int32_t kLower = 0;  ///< the text stands on the anchor
  static constexpr std::int32_t kUpper = 4;  ///< the text hangs from the anchor
  static constexpr std::int32_t kMiddle = 8;

  static constexpr std::int32_t kMinFontSize = 4;
  static constexpr std::int32_t kMaxFontSize = 80;

  [[nodiscard]] PtnObjType GetType() const override { return PtnObjType::Text; }
  [[nodiscard]] std::unique_ptr<SPtnObj> Clone() const override;
  /// Whether the text is not empty.
  [[nodiscard]] bool IsValid() override { return !text_.empty(); }
  void Move(std::int32_t dx, std::int32_t dy) override;
  /// 1: the anchor.
  [[nodiscard]] std::int32_t GetNodeCount() const override { return 1; }
  [[nodiscard]] SPoint GetNode(std::int32_t index) const override;
  void SetNode(std::int32_t index, std::int32_t x, std::int32_t y) override;
  void Mirror() override;
  void MirrorAt(std::int32_t x) override;
  void Rotate() override;
  void RotateAt(SPoint pivot) override;
  [[nodiscard]] bool HitTest(SPoint point) override;
  [[nodiscard]] bool IsInRect(const SRect& rect) override;
  /// Follows the extent of the last drawing; an estimate before the first one.
  [[nodiscard]] SRect GetBoundingRect() override;
  /// False also when the position or the text is missing, or when the data end first.
  [[nodiscard]] bool Read(SRecordReader& reader) override;
  bool Write(SRecordWriter& writer, SPoint origin = {}) const override;

  void SetPosition(SPoint position) { position_ = position; }
  void SetHorizontal(bool on) { horizontal_ = on; }
  void SetAlign(std::int32_t align) { align_ = align; }
  // What changes the drawn size makes the extent an estimate again.
  void SetText(std::u16string_view text);
  void SetFontName(std::u16string_view name);
  /// Limited to kMinFontSize..kMaxFontSize component units.
  void SetFontSize(std::int32_t size);
  void SetBold(bool on);
  void SetItalic(bool on);
  /// Called by the drawing routine with what it drew, in component units.
  void SetExtent(std::int32_t drawnWidth, std::int32_t drawnHeight);

  [[nodiscard]] SPoint Position() const noexcept { return position_; }
  [[nodiscard]] bool IsHorizontal() const noexcept { return horizontal_; }
  [[nodiscard]] std::int32_t Align() const noexcept { return align_; }
  [[nodiscard]] const std::u16string& Text() const noexcept { return text_; }
  [[nodiscard]] const std::u16string& FontName() const noexcept { return fontName_; }
  [[nodiscard]] std::int32_t FontSize() const noexcept { return fontSize_; }
  [[nodiscard]] bool IsBold() const noexcept { return bold_; }
  [[nodiscard]] bool IsItalic() const noexcept { return italic_; }
  // Kept, read and written, but not drawn.
  [[nodiscard]] bool IsUnderline() const noexcept { return underline_; }
  [[nodiscard]] bool IsStrikeout() const noexcept { return strikeout_; }

 private:
  SPoint position_;
  bool horizontal_ = true;
  std::u16string text_;
  std::int32_t align_ = 0;
  bool extentValid_ = false;
  SPoint extent_;
  std::u16string fontName_;
  std::int32_t fontSize_ = 10;
  bool bold_ = false;
  bool italic_ = false;
  bool underline_ = false;
  bool strikeout_ = false;
};

}  // namespace mivo

#endif
