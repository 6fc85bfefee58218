#import <UIKit/UIKit.h>

@interface TideTable : UITableViewController

@end
