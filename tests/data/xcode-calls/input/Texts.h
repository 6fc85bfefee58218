#define CrewString(key, comment) \
    NSLocalizedStringFromTable((key), @"Crew", comment)
// Apple's names keep their meaning, whatever a project makes of them.
#undef NSLocalizedString
#define NSLocalizedString(key, comment) [[NSBundle mainBundle] localizedStringForKey:(key) value:@"" table:@"Elsewhere"]
