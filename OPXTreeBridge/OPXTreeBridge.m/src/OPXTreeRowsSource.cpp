#include "OPXTreeRowsSource.h"

OPXTreeRowsSource::~OPXTreeRowsSource() = default;
