#include "OPXTreeRowsSource.h"

OPXTreeRowsSource::~OPXTreeRowsSource() = default;

void OPXTreeRowsSource::StartMessage() {}
