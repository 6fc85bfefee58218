#import "Receipt.h"

@implementation Receipt

- (NSString *)textForBoat:(NSString *)boat total:(double)total {
    NSMutableString *text = [NSMutableString string];
    [text appendFormat:NSLocalizedString(@"Receipt for %@", @"Head line of the receipt; %@ is the boat's name"), boat];
    [text appendString:@"\n"];
    [text appendFormat:NSLocalizedString(@"Total: %.2f", @"Last line of the receipt"), total];
    [text appendString:@"\n"];
    [text appendString:NSLocalizedString(@"Fair winds!", @"Farewell at the end of the receipt")];
    return text;
}

- (NSArray *)buttons {
    return @[
        NSLocalizedString(@"Print", @"Prints the receipt"),
        NSLocalizedString(@"Send by mail", @"Mails the receipt"),
        NSLocalizedString(@"OK", @"Closes an alert"),
    ];
}

@end
