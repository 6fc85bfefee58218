#import "HBErrors.h"

NSString *HBErrorText(NSInteger code) {
    switch (code) {
        case 1:
            return NSLocalizedString(@"No connection to the harbour office", @"Error");
        case 2:
            return NSLocalizedString(@"The tide table could not be loaded", @"Error");
        case 3:
            return nslocalizedstring(@"Please try again later", @"Error; written by a macro of ours");
        default:
            return [NSString stringWithFormat:NSLocalizedString(@"Something went wrong: %ld", @"Error; %ld is its number"),
                                              (long)code];
    }
}
