#import "main.h"

void ahoy(NSString *title) {
  NSLocalizedString(@"%d boats", @"how many lie in the harbour");
  NSLocalizedString(@"Cast off", @"a button");
  NSLocalizedString(@"cast.off.title", @"the title above it");
  NSLocalizedString(@"Depth: ", @"in front of a number");
  NSLocalizedString(@"Are you sure?", @"");
  NSLocalizedString(@"High water", @"");
  NSLocalizedString(@"Low water", @"");
  NSLocalizedString(title, @"");
}
