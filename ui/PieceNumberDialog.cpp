#include "ui/PieceNumberDialog.h"

#include "core/StartPosition.h"
#include "ui/EnterButton.h"
#include "ui/Layout.h"

#include <QLabel>
#include <QPainter>

namespace brastel {

namespace {

constexpr int InnerWidth = 5724;
constexpr int InnerHeight = 4236;

constexpr double DialogPoints = 8.25;

struct LabelText {
    const char* Name;
    TwipRect Place;
    double Points;
    const char* Text;
};

constexpr LabelText Labels[] = {
    {"lbl_Program", {996, 276, 2136, 456}, 24, "Brastel"},
    {"lbl_Subtitle", {990, 840, 4305, 240}, DialogPoints, "for Linux and other systems with Qt 6"},
    {"lbl_Author", {1560, 1116, 2328, 240}, DialogPoints, "    April 22, 1999"},
    {"lbl_Owner", {1008, 1560, 3804, 240}, DialogPoints, "2026, the Brastel contributors"},
    {"lbl_GameSize", {1560, 2040, 2412, 252}, DialogPoints, "Select Piece Number"},
    {"lbl_Frame", {480, 2880, 4992, 240}, 9.6, "This program is based on the frame program "},
    {"lbl_FrameAuthor", {480, 3120, 4992, 240}, 9.6, "of the Brastel contributors."},
    {"lbl_Screen",
     {480, 3480, 5055, 735},
     DialogPoints,
     "1024 x 768 pixels and 120 dpi recommended."},
};

constexpr TwipRect OkPlace{4800, 1920, 792, 360};
constexpr TwipRect NumberPlace(int index) { return {600 + 600 * index, 2280, 500, 500}; }

/// lin_Divider, two pixels wide.
constexpr QRect Divider(Pixels(975), Pixels(1425) - 1, Pixels(5010 - 975), 2);

}  // namespace

PieceNumberDialog::PieceNumberDialog() {
    setObjectName("frm_GameSize");
    setWindowTitle("About Orvel Geme");
    setAccessibleName("Change Piece Number");
    setWindowFlags(FixedDialogFlags);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    FixInnerArea(*this, InnerWidth, InnerHeight);
    AddLabels();
    AddNumberButtons();
    AddOkButton();
    CentreOnScreen(*this);
}

void PieceNumberDialog::AddLabels() {
    for (const LabelText& row : Labels) {
        auto* label = new QLabel(row.Text, this);
        PlaceControl(*label, row.Name, row.Place);
        QFont font = label->font();
        font.setPixelSize(FontPixels(row.Points));
        label->setFont(font);
        ShrinkTextToFit(*label);
        // If the line is higher than its label, only empty space above and below is cut off.
        const bool isHigh = label->fontMetrics().height() > label->height();
        label->setAlignment(isHigh ? Qt::AlignVCenter : Qt::AlignTop);
    }
}

void PieceNumberDialog::AddNumberButtons() {
    const QString purpose = findChild<QLabel*>("lbl_GameSize")->text();
    for (int layout = 0; layout < LayoutCount; ++layout) {
        auto* button = new EnterButton(QString::number(LayoutPieces(layout)), this);
        PlaceControl(*button, QString("btn_GameSize%1").arg(layout), NumberPlace(layout));
        button->setAccessibleDescription(purpose);
        connect(button, &QPushButton::clicked, this, [this, layout] {
            SelectStartLayout(layout);
            accept();
        });
    }
}

void PieceNumberDialog::AddOkButton() {
    auto* button = new EnterButton("OK", this);
    PlaceControl(*button, "btn_OK", OkPlace);
    // Enter right after the dialog opens changes nothing.
    button->setFocus();
    connect(button, &QPushButton::clicked, this, &QDialog::accept);
}

void PieceNumberDialog::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(Divider, palette().color(QPalette::WindowText));
}

}  // namespace brastel
