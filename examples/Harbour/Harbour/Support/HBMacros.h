#import <Foundation/Foundation.h>

/* A text without a comment for the translator. Headers are not scanned. */
#define HBText(key) NSLocalizedString(key, @"")
