#include "iparametercollection.h"

namespace ParameterCollection {

IParameterCollection::IParameterCollection(QObject* parent)
    : QObject(parent)
{
}

IParameterCollection::~IParameterCollection() = default;

} // namespace ParameterCollection
