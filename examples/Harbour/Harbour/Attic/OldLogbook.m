#import <Foundation/Foundation.h>

// Kept for its wording. Not built any more, and not in the project.
NSArray *OldLogbookTitles(void) {
    return @[
        NSLocalizedString(@"Logbook", @"Title of the logbook"),
        NSLocalizedString(@"Print logbook", @"Button in the logbook"),
        NSLocalizedString(@"Sign the page", @"Button in the logbook"),
    ];
}
