#include "SearchEdit.h"

#include "resourceicons.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextOption>

SearchEdit::SearchEdit(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &SearchEdit::onTextChanged);

    // The lens only shows what the line is for: clicking it does nothing.
    m_searchAction
        = addAction(ResourceIcons::icon(QStringLiteral(":/zarvexviewercomponents/Resources/searchlens_16.png")),
            QLineEdit::TrailingPosition);
    m_searchAction->setEnabled(false);
    m_searchAction->setVisible(true);

    m_clearAction = addAction(ResourceIcons::icon(QStringLiteral(":/zarvexviewercomponents/Resources/cross_16.png")),
        QLineEdit::TrailingPosition);
    connect(m_clearAction, &QAction::triggered, this, &QLineEdit::clear);
    m_clearAction->setVisible(false);

    setStyleSheet(QStringLiteral("QLineEdit { border: 1px solid gray; border-radius: 0px; }"));
}

SearchEdit::~SearchEdit() = default;

void SearchEdit::setShadowDisplayString(QString& text)
{
    m_shadowText = text;
}

void SearchEdit::setShadowDisplayString(const QString& text)
{
    m_shadowText = text;
}

QString SearchEdit::shadowDisplayString() const
{
    return m_shadowText;
}

QSize SearchEdit::sizeHint() const
{
    return QFontMetrics(font()).boundingRect(m_shadowText).size();
}

void SearchEdit::onTextChanged(const QString& text)
{
    m_searchAction->setVisible(text.isEmpty());
    m_clearAction->setVisible(!text.isEmpty());
}

void SearchEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    // Under a style sheet a font handed down by a parent does not reach the
    // text by itself; setting the present font explicitly makes it stick.
    if (event->type() == QEvent::FontChange)
        setFont(font());
}

void SearchEdit::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    // The hint goes with the lens: it shows exactly while the clear button
    // does not.
    if (m_clearAction->isVisible() || m_shadowText.isEmpty())
        return;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));

    QStyleOptionFrame option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
    painter.setClipRect(contents, Qt::ReplaceClip);

    const int frameWidth = style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, this);
    const int fontHeight = QFontMetrics(font()).height();
    const QRectF textRect(contents.left() + 2 * frameWidth,
        contents.top() + (contents.height() - fontHeight + 1) / 2 - frameWidth,
        contents.width() - 3 * frameWidth - height(), fontHeight);

    // The height above is measured in the widget's own font, the text drawn
    // in the application's line edit font; the two agree unless a host sets
    // a font on the line alone.
    painter.setFont(QApplication::font("QLineEdit"));
    painter.drawText(textRect, m_shadowText, QTextOption());
}
