#include "prop_lib.h"

#include <QVBoxLayout>

#include "dialog_texts.h"
#include "note_edit.h"

namespace mivo {
namespace {

namespace text = dialog_text::prop_lib;

constexpr int kVisibleCharacters = 60;
constexpr int kVisibleLines = 8;

}  // namespace

CPropLib::CPropLib(const TextTable& texts, std::u16string_view content, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent),
      text_(Named(new NoteEdit(kVisibleCharacters, kVisibleLines, this), "textEdit", text::kText)) {
  text_->SetContent(content);
  text_->selectAll();

  auto* const column = new QVBoxLayout;
  column->addWidget(text_);
  Finish(column);
  FocusOn(*text_);
}

std::u16string CPropLib::Content() const {
  return text_->Content();
}

std::optional<std::u16string> CPropLib::Ask(const TextTable& texts, std::u16string_view content,
                                            QWidget* parent) {
  CPropLib dialog(texts, content, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Content();
}

void CPropLib::accept() {
  if (text_->IsEdited() && text_->Content().size() > kMaxLength) {
    RefuseTooLong(kMaxLength, *text_);
    return;
  }
  QDialog::accept();
}

}  // namespace mivo
