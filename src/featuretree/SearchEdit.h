/*!
 * \file featuretree/SearchEdit.h
 * SearchEdit, the search line above the feature tree.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QLineEdit>
#include <QString>

class QAction;

/*!
 * The search line above the feature tree: a line edit with a lens icon, a
 * clear button in the lens's place once there is text, and a grey hint that
 * stands in the empty line. The hint is painted here rather than through
 * QLineEdit's placeholder text, so that it shows with the focus too.
 */
class ZVC_EXPORT SearchEdit : public QLineEdit
{
    Q_OBJECT

public:
    //! An empty line with the lens showing and no hint.
    explicit SearchEdit(QWidget* parent = nullptr);
    ~SearchEdit() override;

    //! Stores the hint shown while the line is empty; it shows at the next repaint.
    void setShadowDisplayString(QString& text);
    //! The same, for a temporary such as the result of tr().
    void setShadowDisplayString(const QString& text);
    //! The hint shown while the line is empty.
    QString shadowDisplayString() const;

    //! The size of the hint in the widget's font; empty for an empty hint.
    QSize sizeHint() const override;

protected:
    //! Applies a font handed down by a parent under the line's style sheet too.
    void changeEvent(QEvent* event) override;
    //! Paints the line, then the hint in grey while there is no text.
    void paintEvent(QPaintEvent* event) override;

private slots:
    void onTextChanged(const QString& text);

private:
    QString m_shadowText;
    QAction* m_searchAction; // owned by the line edit
    QAction* m_clearAction; // owned by the line edit
};
