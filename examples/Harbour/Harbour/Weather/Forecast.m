#import "Forecast.h"

@implementation Forecast

- (NSString *)summary {
    if (self.beaufort == 0) {
        return NSLocalizedString(@"Calm as a mill pond", @"Weather: no wind at all");
    }
    if (self.beaufort < 4) {
        return NSLocalizedString(@"Gentle breeze", @"Weather: up to force 3");
    }
    if (self.beaufort < 7) {
        return NSLocalizedString(@"Fresh wind, take a reef", @"Weather: force 4 to 6");
    }
    return NSLocalizedString(@"Gale: stay in harbour", @"Weather: force 7 and above");
}

- (NSString *)speedText:(double)knots {
    NSString *unit = NSLocalizedStringFromTable(@"knots", @"Units", @"Speed of the wind");
    return [NSString stringWithFormat:@"%.0f %@", knots, unit];
}

- (NSString *)warning {
    return [NSString stringWithFormat:NSLocalizedString(@"Wind from %1$@, force %2$d",
                                                        @"Weather: %1$@ is a point of the compass, %2$d the force"),
                                      @"SW", self.beaufort];
}

@end
