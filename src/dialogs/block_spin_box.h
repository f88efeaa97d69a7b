#ifndef MIVO_DIALOGS_BLOCK_SPIN_BOX_H
#define MIVO_DIALOGS_BLOCK_SPIN_BOX_H

#include <QAbstractSpinBox>
#include <cstdint>

class QLineEdit;

namespace mivo {

/// A plain number field, which takes any text, with an up-down control from 1 to the block count.
class BlockSpinBox final : public QAbstractSpinBox {
 public:
  BlockSpinBox(std::int32_t blockCount, QWidget* parent);

  /// The field itself.
  [[nodiscard]] QLineEdit& Edit() const { return *lineEdit(); }

  void stepBy(int steps) override;
  QValidator::State validate(QString& input, int& cursor) const override;
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  [[nodiscard]] StepEnabled stepEnabled() const override;

 private:
  [[nodiscard]] std::int32_t Block() const;

  std::int32_t blockCount_;
};

}  // namespace mivo

#endif
