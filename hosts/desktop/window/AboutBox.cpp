#include "hosts/desktop/window/AboutBox.h"

#include "hosts/desktop/look/Text.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>

namespace desktop {
namespace {

constexpr int iconSize = 64;
constexpr int textWidth = 380;

using Question = console::Result (snapin::CPrintAbout::*)(wire::WideString&) const;

QLabel* label(const snapin::CPrintAbout& about, Question question, QWidget* parent) {
    wire::WideString text;
    auto* const made = new QLabel(parent);
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    if (console::succeeded((about.*question)(text))) {
        made->setText(toQString(text));
    }
    return made;
}

} // namespace

AboutBox::AboutBox(const snapin::CPrintAbout& about, const QIcon& icon, QWidget* owner) : QDialog(owner) {
    setWindowTitle(QStringLiteral("About Vantrel Manager"));
    auto* const picture = new QLabel(this);
    picture->setPixmap(icon.pixmap(QSize(iconSize, iconSize), devicePixelRatio()));
    picture->setAccessibleName(QStringLiteral("Program icon"));
    auto* const name = new QLabel(QStringLiteral("Vantrel Manager"), this);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.5);
    large.setBold(true);
    name->setFont(large);
    auto* const description = label(about, &snapin::CPrintAbout::GetSnapinDescription, this);
    description->setMinimumWidth(textWidth);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    buttons->button(QDialogButtonBox::Close)->setIcon({}); // the style's own icon is dark on dark

    auto* const layout = new QGridLayout(this);
    layout->setHorizontalSpacing(18);
    layout->setVerticalSpacing(8);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->addWidget(picture, 0, 0, 4, 1, Qt::AlignTop);
    layout->addWidget(name, 0, 1);
    layout->addWidget(label(about, &snapin::CPrintAbout::GetSnapinVersion, this), 1, 1);
    layout->addWidget(description, 2, 1);
    layout->addWidget(label(about, &snapin::CPrintAbout::GetProvider, this), 3, 1);
    layout->addWidget(buttons, 4, 0, 1, 2);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace desktop
