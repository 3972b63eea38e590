#pragma once

#include "parameters/iparameter.h"

#include <QSharedPointer>
#include <QWidget>

class QLabel;
class QFormLayout;

/*!
 * The pane beside the tree that tells all about the current feature: display
 * name, name, description, type, value, range and increment, unit, access and
 * visibility. Fed by the tree widget's onCurrentChanged and onNewText.
 */
class FeaturePane : public QWidget
{
    Q_OBJECT

public:
    explicit FeaturePane(QWidget* parent = nullptr);

    //! The text of the field with that object name ("displayName", "value", ...), for tests.
    QString fieldText(const QString& field) const;

public slots:
    void setParameter(QSharedPointer<ParameterCollection::IParameter> parameter);
    void setValueText(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void addField(const char* name);
    void retranslate();
    void fill();

    QFormLayout* m_layout = nullptr;
    QList<QLabel*> m_captions;
    QList<QLabel*> m_fields;
    QSharedPointer<ParameterCollection::IParameter> m_parameter;
};
