// Compiled by the include tests with the include paths of one layer. It includes a header of that
// layer, and, when asked to, one that the layer must not see.
#include MIVO_OWN_HEADER
#ifdef MIVO_FORBIDDEN_HEADER
#include MIVO_FORBIDDEN_HEADER
#endif
