#import "Texts.h"
#define LOCAL_TITLE NSLocalizedString(@"Title", @"of the window")
NSString *a = NSLocalizedString(@"Hoist \"all\"\nsails", nil);
NSString *b = NSLocalizedStringWithDefaultValue(@"anchor.drop", nil, bundle, @"Drop" @" anchor", @"Button");
NSString *c = CrewString(@"Captain", @"Rank");
NSString *d = [bundle localizedStringForKey:@"Lower" value:nil table:nil];
// NSLocalizedString(@"in a comment", nil)
#if 0
NSString *e = NSLocalizedString(@"Any branch", nil);
#endif
NSString *f = NSLocalizedString(name, nil);
NSString *g = NSLocalizedStringFromTable(@"Key", tableName, nil);
/* ä 🚢 */ NSString *h = NSLocalizedString(@"Hoist \"all\"\nsails", @"Again");
NSString *i = NSLocalizedString(@"open"
