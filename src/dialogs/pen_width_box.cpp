#include "pen_width_box.h"

#include "ptn_form.h"

namespace mivo {

PenWidthBox::PenWidthBox(std::int32_t width, QWidget* parent) : QComboBox(parent) {
  for (std::int32_t offered = 0; offered <= kMaxPenWidth; ++offered) {
    addItem(QString::number(offered));
  }
  setCurrentIndex(OfferedPenWidth(width));
}

std::int32_t PenWidthBox::Width() const {
  return OfferedPenWidth(currentIndex());
}

}  // namespace mivo
