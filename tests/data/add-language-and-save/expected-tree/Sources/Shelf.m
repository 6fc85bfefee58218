#import "Shelf.h"

@implementation Shelf

- (NSString *)title {
    return NSLocalizedString(@"Shelf", @"Title of the shelf");
}

- (NSString *)emptyText {
    return NSLocalizedString(@"Nothing left", @"Shown on an empty shelf");
}

@end
