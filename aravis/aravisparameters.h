#pragma once

// Every kind of Aravis parameter, for the node map that makes them.

#include "araviscommandparameter.h"
#include "aravisfloatparameter.h"
#include "aravisintegerparameter.h"
#include "aravisparameter.h"
