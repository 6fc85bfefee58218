#define NSLocalizedString(key, comment) [bundle localizedStringForKey:(key) value:@"" table:nil]
#define X NSLocalizedString
