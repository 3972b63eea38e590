/*!
 * \file messages/messageboxcheckable.h
 * MessageBoxCheckable, a message box the user can silence for good.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QString>

class QAbstractButton;
class QCheckBox;

/*!
 * A message box with a check box "Don't show this dialog again".
 *
 * Each dialog is named by a settings key. When the user ticks the box and
 * presses a button that counts (a standard button within
 * saveResultOnButton(), or one of the buttons given to the other overload),
 * the result is stored in the settings group "DoNotShowAgain" under that key.
 * From then on exec() on a new object with that key gives the stored result
 * at once and shows nothing, until reset() or resetAll().
 *
 * The settings are the application's default QSettings. An object is meant
 * for one showing: the answer it stores is read by the next object, not by
 * itself.
 */
class ZVC_EXPORT MessageBoxCheckable : public QMessageBox
{
    Q_OBJECT

public:
    //! A plain box named by settingsKey; reads the answer stored under that key, if any.
    explicit MessageBoxCheckable(const QString& settingsKey, QWidget* parent = nullptr);
    //! Replaces the standard icon with the library's own; NoIcon, or any value QMessageBox doesn't name, shows none.
    MessageBoxCheckable(const QString& settingsKey, QMessageBox::Icon icon, const QString& title, const QString& text,
        QFlags<QMessageBox::StandardButton> buttons = QMessageBox::NoButton, QWidget* parent = nullptr,
        QFlags<Qt::WindowType> flags = Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);

    //! The results worth storing; empty at first, so that nothing is stored.
    QFlags<QMessageBox::StandardButton> saveResultOnButton() const;
    //! Sets the standard buttons whose result is worth storing.
    void setSaveResultOnButton(QFlags<QMessageBox::StandardButton> buttons);
    //! Adds a button, typically a custom one, whose click is worth storing.
    void setSaveResultOnButton(QAbstractButton* button);

    //! The text of the check box; "&Don't show this dialog again" by default.
    QString checkBoxText() const;
    //! An empty text brings back the default sentence.
    void setCheckBoxText(const QString& text);

public slots:
    //! The stored result if there is one, without showing anything; otherwise
    //! shows the box and gives QDialog::exec()'s result.
    int exec() override;
    //! Forgets this key's stored result; false if none was stored.
    bool reset();
    //! Forgets every stored result of every key.
    bool resetAll();

private:
    void init();
    void addCheckBoxWidget();
    void saveDoNotShowAgain(int result);

    QPointer<QCheckBox> m_checkBox; // owned by the box once handed to setCheckBox()
    QString m_settingsKey;
    qint32 m_storedResult = -1;
    QFlags<QMessageBox::StandardButton> m_saveResultOnButton;
    QString m_checkBoxText;
    // Not owned; guarded so that a button deleted meanwhile can't be mistaken
    // for a new one at the same address.
    QList<QPointer<QAbstractButton>> m_saveButtons;
};
