#include "abstractitemeditor.h"

AbstractItemEditor::~AbstractItemEditor() = default;
