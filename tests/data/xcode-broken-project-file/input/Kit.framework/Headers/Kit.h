#define K NSLocalizedString(@"no", nil)
