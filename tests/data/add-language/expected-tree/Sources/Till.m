#import "Till.h"

@implementation Till

- (NSString *)title {
    return NSLocalizedString(@"Till", @"Title of the till");
}

- (NSString *)textForPrice:(double)price {
    if (price == 0) return NSLocalizedString(@"Free of charge", @"In place of a price");
    return [NSString stringWithFormat:NSLocalizedString(@"%.2f each", @"Price of one piece"), price];
}

- (NSArray *)buttons {
    return @[NSLocalizedString(@"Cancel", @"Button of the till"), NSLocalizedString(@"Pay", @"Button of the till")];
}

@end
