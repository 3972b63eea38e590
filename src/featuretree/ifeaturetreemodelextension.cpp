#include "ifeaturetreemodelextension.h"

IFeatureTreeModelExtension::~IFeatureTreeModelExtension() = default;
