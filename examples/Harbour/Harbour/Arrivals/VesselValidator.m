#import "VesselValidator.h"

#define HBProblem(text) NSLocalizedString(text, @"")

@implementation VesselValidator

- (NSString *)problemWithForm:(id)form {
    if ([[form valueForKey:@"name"] length] == 0) {
        return NSLocalizedString(@"A boat needs a name.", @"Problem in the form");
    }
    if ([[form valueForKey:@"length"] doubleValue] > 24) {
        return NSLocalizedString(@"We have no berth for a boat this long.", @"Problem in the form");
    }
    if ([[form valueForKey:@"draught"] doubleValue] > 3.5) {
        return NSLocalizedString(@"At low water you would sit on the mud.\nPlease call the harbour office.",
                                 @"Problem in the form; two lines");
    }
    return nil;
}

@end
