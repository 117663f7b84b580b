#include "ui/phrase/frm_codes.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <algorithm>

#include "ui/controls/code_page.h"
#include "ui/controls/form.h"
#include "ui/controls/text_area.h"

namespace loquitor {
namespace {

constexpr TwipSize ClientSize{7335, 5265};
constexpr int Margin = 60;  // twips around the buttons

constexpr ControlRow Rows[] = {
    {ControlKind::TextArea, "txtCodes", "", "", {0, 0, 7335, 4710}, "", "Codes"},
    ButtonRow("btnCopy", "", "Copy to Clipboard", {4365, 4770, 1695, 435},
              "Copy the numeric Orvatone codes to the windows Clipboard."),
    ButtonRow("btnDone", "", "Done", {6120, 4770, 1155, 435}),
};

}  // namespace

frmCodes::frmCodes(QWidget* zOwner, const EditorContext& zContext)
    : ToolWindow(zOwner, QStringLiteral("Orvatone Codes"), ClientSize, Sizing::Resizable),
      shared_(zContext.shared) {
  Form form(this);
  form.Add(Rows);
  txtCodes_ = form.Get<TextArea>("txtCodes");
  btnCopy_ = form.Get<QPushButton>("btnCopy");
  btnDone_ = form.Get<QPushButton>("btnDone");
  form.OnClick("btnCopy", this, &frmCodes::btnCopy_Click);
  form.OnClick("btnDone", this, &frmCodes::close);
}

void frmCodes::Load() {
  txtCodes_->SetText(shared_.OrvatoneCodes);
  LayOut();
}

void frmCodes::resizeEvent(QResizeEvent*) {
  LayOut();
}

void frmCodes::btnCopy_Click() {
  QClipboard* clipboard = QGuiApplication::clipboard();
  clipboard->clear();
  clipboard->setText(ToQString(txtCodes_->Text()));
}

void frmCodes::LayOut() {
  const int margin = PixelsFromTwips(Margin);
  const int listHeight = height() - (btnDone_->height() + 2 * margin);
  txtCodes_->setGeometry(0, 0, width(), std::max(listHeight, 1));
  btnDone_->move(width() - btnDone_->width() - margin, height() - btnDone_->height() - margin);
  btnCopy_->move(width() - (btnCopy_->width() + btnDone_->width() + 2 * margin),
                 height() - btnCopy_->height() - margin);
}

}  // namespace loquitor
