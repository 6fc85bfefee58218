#import "FeeCalculator.h"

@implementation FeeCalculator

- (double)feeForMetres:(double)metres nights:(int)nights {
    return metres * 1.8 * nights;
}

- (NSString *)explanation {
    return NSLocalizedString(@"Fee for each metre and night, water included", @"Line under the total");
}

- (NSArray *)extras {
    return @[
        NSLocalizedString(@"Shower token", @"Extra on the bill"),
        NSLocalizedString(@"Use of the crane", @"Extra on the bill"),
        NSLocalizedString(@"Shore power", @"Extra on the bill"),
    ];
}

@end
