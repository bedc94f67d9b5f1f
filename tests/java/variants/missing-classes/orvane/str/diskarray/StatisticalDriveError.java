package orvane.str.diskarray;

/** Cannot be initialised: the JVM cannot find it for the bridge. */
public class StatisticalDriveError {
    static {
        if (!Boolean.getBoolean("kx.never")) throw new IllegalStateException("unusable class");
    }

    public StatisticalDriveError_LimitInfo limit;
    public StatisticalDriveError_Info[][] drive;
}
