#include "app/window/NoticeStrip.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

using namespace Qt::StringLiterals;

NoticeStrip::NoticeStrip(QWidget* parent)
    : QFrame(parent), _label(new QLabel(this)), _closeButton(new QToolButton(this)) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    _label->setObjectName(u"noticeLabel"_s);
    _label->setForegroundRole(QPalette::ToolTipText);
    _label->setWordWrap(true);
    _label->setTextFormat(Qt::PlainText);
    _closeButton->setObjectName(u"closeNoticeButton"_s);
    _closeButton->setAccessibleName(tr("Close notice"));
    _closeButton->setToolTip(tr("Close this notice"));
    _closeButton->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    _closeButton->setAutoRaise(true);
    _closeButton->setFocusPolicy(Qt::TabFocus);
    connect(_closeButton, &QToolButton::clicked, this, &NoticeStrip::putAway);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 4, 4, 4);
    layout->addWidget(_label, 1);
    layout->addWidget(_closeButton, 0, Qt::AlignTop);
    hide();
}

QString NoticeStrip::offer() const {
    return _offerButton != nullptr ? _offerButton->text() : QString();
}

void NoticeStrip::setOffer(const QString& offer) {
    if (_offerButton == nullptr) {
        _offerButton = new QPushButton(this);
        _offerButton->setObjectName(u"noticeOfferButton"_s);
        _offerButton->setFocusPolicy(Qt::TabFocus);
        connect(_offerButton, &QPushButton::clicked, this, [this] {
            putAway();
            Q_EMIT offerTaken();
        });
        qobject_cast<QHBoxLayout*>(layout())->insertWidget(1, _offerButton);
        setTabOrder(_offerButton, _closeButton);
    }
    _offerButton->setText(offer);
    _offerButton->setAccessibleName(offer);
}

void NoticeStrip::say(const QString& text) {
    _label->setText(text);
    setAccessibleName(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void NoticeStrip::putAway() {
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus) {
        Q_EMIT hasGivenUpFocus();
    }
}
