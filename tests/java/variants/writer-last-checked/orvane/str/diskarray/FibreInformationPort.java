package orvane.str.diskarray;

/** Lacks connect, the last field whose failure drops the object. */
public class FibreInformationPort {
    public String node_name;
    public String port_name;
    public String n_port_id;
    public String get_address;
    public int frame_size;
    public int if_board;
    public int support_speed;
    public int set_speed;
    public int refer_speed;
    public int connect_valid;
    public FibreInformationConnector[] connect_absent;
}
