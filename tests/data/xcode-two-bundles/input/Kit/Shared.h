#define HELLO NSLocalizedString(@"Only in the application", nil)
#define BYE NSLocalizedString(@"In neither", nil)
