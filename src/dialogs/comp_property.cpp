#include "comp_property.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <utility>

#include "dialog_texts.h"
#include "note_edit.h"
#include "number_text.h"
#include "qt_text.h"

namespace mivo {
namespace {

namespace text = dialog_text::comp_property;

constexpr int kNumberCharacters = 6;
constexpr int kNoteCharacters = 60;
constexpr int kNoteLines = 5;

std::int32_t NumberIn(const QLineEdit& edit) {
  return ParseInt(ToText(edit.text()));
}

}  // namespace

CCompProperty::CCompProperty(const TextTable& texts, CompPropertyValues values, QWidget* parent)
    : FormDialog(texts, text::kTitle, parent), values_(std::move(values)) {
  if (!values_.usePattern) values_.noBitPattern = false;

  constexpr int kNameCharacters = static_cast<int>(CompPropertyValues::kMaxNameLength);
  name_ = MakeLineEdit("nameEdit", text::kName, values_.name, kNameCharacters);
  prefix_ = MakeLineEdit("prefixEdit", text::kPrefix, values_.prefix, kNumberCharacters);
  auto* const groups = new QHBoxLayout;
  groups->addWidget(MakeSizeGroup());
  groups->addWidget(MakePatternGroup(), 1);
  groups->addWidget(MakeBlockGroup());
  const auto makeEdit = [&](const char* objectName, TextId label, const std::u16string& content) {
    return MakeLineEdit(objectName, label, content, kNameCharacters);
  };
  manufacturer_ = makeEdit("manufacturerEdit", text::kManufacturer, values_.manufacturer);
  partNumber_ = makeEdit("partNumberEdit", text::kPartNumber, values_.partNumber);
  package_ = makeEdit("packageEdit", text::kPackage, values_.package);
  note_ = Named(new NoteEdit(kNoteCharacters, kNoteLines, this), "noteEdit", text::kNote);
  note_->SetContent(values_.note);
  ShowBlockControls();
  Connect();

  auto* const grid = new QGridLayout;
  grid->addWidget(MakeLabel(text::kName, *name_), 0, 0);
  grid->addWidget(name_, 0, 1);
  grid->addWidget(MakeLabel(text::kPrefix, *prefix_), 0, 2);
  grid->addWidget(prefix_, 0, 3);
  grid->addLayout(groups, 1, 0, 1, -1);
  int row = 2;
  for (const auto& [label, edit] : {std::pair{text::kManufacturer, manufacturer_},
                                    {text::kPartNumber, partNumber_},
                                    {text::kPackage, package_}}) {
    grid->addWidget(MakeLabel(label, *edit), row, 0);
    grid->addWidget(edit, row++, 1, 1, -1);
  }
  grid->addWidget(MakeLabel(text::kNote, *note_), row, 0, Qt::AlignTop);
  grid->addWidget(note_, row, 1, 1, -1);
  grid->setRowStretch(row, 1);
  grid->setColumnStretch(1, 1);
  Finish(grid);
  FocusOn(*name_);
}

std::optional<CompPropertyValues> CCompProperty::Ask(const TextTable& texts,
                                                     const CompPropertyValues& values,
                                                     QWidget* parent) {
  CCompProperty dialog(texts, values, parent);
  if (dialog.exec() != Accepted) return std::nullopt;
  return dialog.Values();
}

QGroupBox* CCompProperty::MakeSizeGroup() {
  auto* const group = new QGroupBox(Text(text::kSizeGroup), this);
  width_ = MakeLineEdit("widthEdit", text::kWidth, IntText(values_.width), kNumberCharacters);
  height_ = MakeLineEdit("heightEdit", text::kHeight, IntText(values_.height), kNumberCharacters);
  auto* const form = new QFormLayout(group);
  form->addRow(MakeLabel(text::kWidth, *width_), width_);
  form->addRow(MakeLabel(text::kHeight, *height_), height_);
  return group;
}

QGroupBox* CCompProperty::MakePatternGroup() {
  auto* const group = new QGroupBox(Text(text::kPatternGroup), this);
  usePattern_ = MakeButton<QCheckBox>("usePatternCheck", text::kUsePattern);
  noBitPattern_ = MakeButton<QCheckBox>("noBitPatternCheck", text::kNoBitPattern);
  usePattern_->setChecked(values_.usePattern);
  noBitPattern_->setChecked(values_.noBitPattern);
  noBitPattern_->setEnabled(values_.usePattern);
  auto* const column = new QVBoxLayout(group);
  column->addWidget(usePattern_);
  column->addWidget(noBitPattern_);
  column->addStretch();
  return group;
}

QGroupBox* CCompProperty::MakeBlockGroup() {
  auto* const group = new QGroupBox(Text(text::kBlockGroup), this);
  blocks_ = MakeLineEdit("blocksEdit", text::kBlocks, {}, kNumberCharacters);
  fixedBlock_ = MakeButton<QCheckBox>("fixedBlockCheck", text::kFixedBlock);
  fixedNumber_ = MakeLineEdit("fixedBlockNumberEdit", text::kFixedBlock, {}, kNumberCharacters);
  sharedBlock_ = MakeButton<QCheckBox>("sharedBlockCheck", text::kSharedBlock);
  auto* const grid = new QGridLayout(group);
  grid->addWidget(MakeLabel(text::kBlocks, *blocks_), 0, 0);
  grid->addWidget(blocks_, 0, 1);
  grid->addWidget(fixedBlock_, 1, 0);
  grid->addWidget(fixedNumber_, 1, 1);
  grid->addWidget(sharedBlock_, 2, 0, 1, 2);
  return group;
}

void CCompProperty::Connect() {
  connect(usePattern_, &QCheckBox::clicked, this, [this](bool isChecked) {
    noBitPattern_->setEnabled(isChecked);
    noBitPattern_->setChecked(isChecked);
  });
  connect(fixedBlock_, &QCheckBox::clicked, this, [this](bool isChecked) {
    values_.fixedBlock = isChecked;
    values_.sharedBlock = false;
    ShowBlockControls();
  });
  connect(sharedBlock_, &QCheckBox::clicked, this, [this](bool isChecked) {
    values_.sharedBlock = isChecked;
    values_.fixedBlock = false;
    ShowBlockControls();
  });
}

void CCompProperty::ShowBlockControls() {
  const BlockControls controls = BlockControlsFor(values_);
  fixedBlock_->setChecked(controls.isFixedChecked);
  sharedBlock_->setChecked(controls.isSharedChecked);
  blocks_->setEnabled(controls.isBlocksEnabled);
  fixedNumber_->setEnabled(controls.isFixedNumberEnabled);
  ShowText(*blocks_, IntText(controls.blocks));
  ShowText(*fixedNumber_, IntText(controls.fixedNumber));
}

void CCompProperty::ReadControls() {
  values_.name = ToText(name_->text());
  values_.prefix = ToText(prefix_->text());
  values_.width = NumberIn(*width_);
  values_.height = NumberIn(*height_);
  values_.blocks = NumberIn(*blocks_);
  values_.usePattern = usePattern_->isChecked();
  values_.noBitPattern = noBitPattern_->isChecked();
  values_.fixedBlockNumber = NumberIn(*fixedNumber_);
}

QWidget& CCompProperty::ControlOf(CompPropertyRefusal::Field field) const {
  using Field = CompPropertyRefusal::Field;
  switch (field) {
    case Field::Name:
      return *name_;
    case Field::Width:
      return *width_;
    case Field::Height:
      return *height_;
    case Field::Blocks:
      return *blocks_;
    case Field::FixedBlockNumber:
      break;
  }
  return *fixedNumber_;
}

void CCompProperty::accept() {
  ReadControls();
  if (const std::optional<CompPropertyRefusal> refusal = Check(values_)) {
    Refuse(refusal->message, ControlOf(refusal->field));
    return;
  }
  if (values_.sharedBlock) values_.fixedBlock = false;  // as the boxes show it
  std::u16string note = note_->Content();
  if (note_->IsEdited() && note.size() > CompPropertyValues::kMaxNoteLength) {
    RefuseTooLong(CompPropertyValues::kMaxNoteLength, *note_);
    return;
  }
  values_.note = std::move(note);
  values_.manufacturer = ToText(manufacturer_->text());
  values_.partNumber = ToText(partNumber_->text());
  values_.package = ToText(package_->text());
  QDialog::accept();
}

}  // namespace mivo
