// Generated from the schemas; do not edit. Regenerate with the target "generate".
#pragma once

// Every container and enumeration class.
#include "FrameworkDataContainers/AContainerWithANameOfSomeLengthType.h"
#include "FrameworkDataContainers/BasicType.h"
#include "FrameworkDataContainers/DerivedType.h"
#include "FrameworkDataContainers/EmptyDerivedType.h"
#include "FrameworkDataContainers/EmptyType.h"
#include "FrameworkDataContainers/FrameworkDataContainersEnums.h"
#include "FrameworkDataContainers/ListsType.h"
#include "FrameworkDataContainers/ScalarsType.h"
