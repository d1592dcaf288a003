#include "app/window/NoticeStrip.h"

#include "app/window/SpokenNotice.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

using namespace Qt::StringLiterals;

NoticeStrip::NoticeStrip(QWidget* parent) : Strip(parent), _spoken(new SpokenNotice(this)) {
    label().setObjectName(u"noticeLabel"_s);
    auto* closeButton = new QToolButton(this);
    closeButton->setObjectName(u"closeNoticeButton"_s);
    closeButton->setAccessibleName(tr("Close notice"));
    closeButton->setToolTip(tr("Close this notice"));
    // A theme's icon may be as dark as the strip. In its own frame a letter is seen on any.
    closeButton->setText(u"×"_s);
    connect(closeButton, &QToolButton::clicked, this, &NoticeStrip::putAway);
    append(*closeButton);
}

void NoticeStrip::setOffer(const QString& offer) {
    auto& button = addButton(offer, u"noticeOfferButton"_s);
    connect(&button, &QPushButton::clicked, this, [this] {
        putAway();
        Q_EMIT offerTaken();
    });
    setTabOrder(&button, findChild<QToolButton*>());
}

void NoticeStrip::say(const QString& text) {
    setText(text);
    show();
    _spoken->say(text);
}

void NoticeStrip::putAway() {
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus) {
        Q_EMIT hasGivenUpFocus();
    }
}
