#include "corvane/operation/OperationTagBase.h"
