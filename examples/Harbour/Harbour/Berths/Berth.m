#import "Berth.h"

#import "../Support/HBMacros.h"

@implementation Berth

- (NSString *)stateText {
    switch (self.state) {
        case BerthFree:
            return NSLocalizedString(@"Free", @"State of a berth");
        case BerthOccupied:
            return NSLocalizedString(@"Occupied", @"State of a berth");
        case BerthReserved:
            return NSLocalizedString(@"Reserved", @"State of a berth");
        case BerthClosed:
            return NSLocalizedString(@"Closed for repair", @"State of a berth");
    }
    return HBText(@"Unknown");
}

- (NSString *)depthText {
    return [NSString stringWithFormat:NSLocalizedString(@"Depth (m): %.1f", @"Water below the keel, in metres"),
                                      self.depthInMetres];
}

@end
